"""The server under Wine: built DLLs, a fresh prefix of its own, scripts and programs run in it."""

import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

import pytest

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


def pytest_collection_modifyitems(items):
    reason = why_not()
    if reason is None:
        return
    for item in items:
        if Path(__file__).parent in item.path.parents:
            item.add_marker(pytest.mark.skip(reason=reason))


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


@pytest.fixture(scope="session")
def new_prefix():
    made = []

    def make(name: str) -> Prefix:
        made.append(Prefix(name))
        return made[-1]

    yield make
    for prefix in made:
        prefix.close()


@pytest.fixture(scope="session")
def prefix(new_prefix):
    """A prefix in which both servers are registered."""
    fresh = new_prefix("tests")
    for dll in ("CVDeveloper.dll", "CVConnector.dll"):
        assert fresh.register(dll).code == 0
    return fresh


@pytest.fixture
def run_script(prefix, tmp_path):
    """Runs VBScript text; it must end well unless the test asks for the result itself."""

    def run(text: str, *words, check=True, ending="vbs") -> Result:
        file = tmp_path / f"script.{ending}"
        file.write_text(text, encoding="utf-8")
        result = prefix.program("script_host", file, *words)
        assert not check or result.code == 0, result.errors + result.text
        return result

    return run


@pytest.fixture
def lines_of(run_script):
    """The lines that a script prints."""

    def run(text: str, *words) -> list[str]:
        return run_script(text, *words).lines

    return run


def windows_path(path: Path) -> str:
    return f"Z:{path}".replace("/", "\\")
