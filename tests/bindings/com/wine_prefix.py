"""Wine, the built servers, and prefixes to run them in."""

import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
BUILD = ROOT / "build" / "windows64"
PREFIXES = ROOT / "build" / "wine"
WINE = shutil.which("wine")


def why_not() -> str | None:
    if WINE is None:
        return "Wine is not installed"
    if shutil.which("x86_64-w64-mingw32-g++-posix") is None:
        return "MinGW-w64 is not installed"
    if not (BUILD / "bin" / "CVDeveloper.dll").exists():
        return "build/windows64 is not built"
    return None


def windows_path(path: Path) -> str:
    return f"Z:{path}".replace("/", "\\")


@dataclass
class Result:
    code: int
    lines: list[str]
    errors: str

    @property
    def text(self) -> str:
        return "\n".join(self.lines)


class Prefix:
    """A folder that Wine takes for a Windows installation. Nothing of the user's is touched."""

    def __init__(self, name: str):
        self.folder = PREFIXES / name
        shutil.rmtree(self.folder, ignore_errors=True)
        home = PREFIXES / "home"
        home.mkdir(parents=True, exist_ok=True)
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(home),
            "WINEPREFIX": str(self.folder),
            "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe=",
            "LC_ALL": "de_DE.UTF-8",
        }
        self.run("wineboot", "-i", timeout=180)

    def run(self, *words, timeout=60) -> Result:
        # Into files: Wine's own processes keep a pipe open long after the program has ended.
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as errors:
            done = subprocess.run(
                [WINE, *map(str, words)],
                env=self.environment, cwd=self.folder.parent, timeout=timeout,
                stdin=subprocess.DEVNULL, stdout=out, stderr=errors,
            )
            texts = []
            for file in (out, errors):
                file.seek(0)
                texts.append(file.read().decode("utf-8", "replace").replace("\r\n", "\n"))
        return Result(done.returncode, texts[0].splitlines(), texts[1])

    def program(self, name: str, *words) -> Result:
        return self.run(BUILD / "tests" / f"{name}.exe", *words)

    def register(self, dll: str, *flags) -> Result:
        return self.run("regsvr32", "/s", *flags, f"Z:{BUILD}/bin/{dll}".replace("/", "\\"))

    def close(self):
        subprocess.run(["wineserver", "-k"], env=self.environment, capture_output=True, timeout=60)
        shutil.rmtree(self.folder, ignore_errors=True)
