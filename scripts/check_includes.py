"""Fails where an include points against the direction of the layers.

automation, platform <- tools, data <- details, entities <- session; the library knows neither the
host nor the ways in, and the ways in know the library only through its public headers.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
RANKS = {
    "automation": 0,
    "platform": 0,
    "host": 0,  # include/cvdeveloper/host: what the library needs of a host
    "data": 1,
    "tools": 2,
    "details": 3,
    "entities": 3,
    "session": 4,
}
TOP_RANK = 4
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def layer_of(path: Path) -> str:
    """The layer of a library file; headers beside the folders assemble the public classes."""
    parts = path.parts
    inner = parts[2:] if parts[:2] == ("include", "cvdeveloper") else parts[1:]
    return inner[0] if len(inner) > 1 else ""


def rank_of_include(target: str) -> int | None:
    parts = target.split("/")
    if parts[0] == "cvdeveloper":
        if len(parts) == 2:
            return 0 if parts[1] == "enumerations.h" else TOP_RANK
        return RANKS.get(parts[1])
    return RANKS.get(parts[0]) if len(parts) > 1 else None


def wrong_includes(path: Path) -> list[str]:
    relative = path.relative_to(ROOT)
    layer = layer_of(relative)
    own_rank = RANKS.get(layer, 0 if relative.name == "enumerations.h" else TOP_RANK)
    found = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        target = match.group(1)
        outside = target.split("/")[0] in {"bindings", "apps", "tests", "bench"}
        stand_alone_host = target.startswith("host/")
        rank = rank_of_include(target)
        if outside or stand_alone_host or (rank is not None and rank > own_rank):
            found.append(f"{relative}:{number}: {layer or 'public class'} includes {target}")
    return found


def wrong_host_includes(path: Path) -> list[str]:
    """The stand-alone host knows the library's public headers and its bottom layers."""
    relative = path.relative_to(ROOT)
    found = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match and match.group(1).split("/")[0] in {
            "data", "tools", "details", "entities", "session", "bindings", "apps", "tests",
        }:
            found.append(f"{relative}:{number}: the host includes {match.group(1)}")
    return found


def main() -> int:
    wrong = []
    for folder in ("include", "src"):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                wrong += wrong_includes(path)
    for path in sorted((ROOT / "host").rglob("*")):
        if path.suffix in {".h", ".cpp"}:
            wrong += wrong_host_includes(path)
    print("\n".join(wrong) if wrong else "all includes point one way")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
