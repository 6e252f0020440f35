"""Windows programs under Wine: what is built, and prefixes of their own to run it in.

A prefix is a folder that Wine takes for a Windows installation; nothing of the user's is touched.
"""

import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PREFIXES = ROOT / "build" / "wine"
LOCALES = ROOT / "build" / "locale"
LANGUAGE = "de_DE.UTF-8"


@dataclass(frozen=True)
class Windows:
    """A Windows that programs are built for, and the Wine that runs them."""

    bits: int
    compiler: str
    # The words that start Wine and its server; no words where there is none.
    wine: tuple[str, ...] | None
    server: tuple[str, ...] = ()

    @property
    def build(self) -> Path:
        return ROOT / "build" / f"windows{self.bits}"

    def why_not(self, *files: Path) -> str | None:
        """The reason why programs cannot be run, for a test that is skipped."""
        if self.wine is None:
            return f"no {self.bits}-bit Wine was found"
        if shutil.which("localedef") is None:
            return "localedef is not installed"
        if shutil.which(self.compiler) is None:
            return "MinGW-w64 is not installed"
        for file in files:
            if not file.exists():
                return f"{file.relative_to(ROOT)} is not built"
        return None


def windows_64() -> Windows:
    compiler = "x86_64-w64-mingw32-g++-posix"
    wine, server = shutil.which("wine"), shutil.which("wineserver")
    return Windows(64, compiler, (wine,), (server,)) if wine else Windows(64, compiler, None)


def windows_32() -> Windows:
    """With the system's own 32-bit Wine, or else the one that scripts/make_wine32 makes."""
    compiler = "i686-w64-mingw32-g++-posix"
    wine, server = "/usr/lib/wine/wine", "/usr/lib/wine/wineserver32"
    if Path(wine).exists():
        return Windows(32, compiler, (wine,), (server,))
    system = ROOT / "build" / "wine32"
    if shutil.which("bwrap") is None or not (system / wine[1:]).exists():
        return Windows(32, compiler, None)
    temporary = tempfile.gettempdir()
    inside = ("bwrap", "--bind", str(system), "/", "--dev-bind", "/dev", "/dev",
              "--proc", "/proc", "--bind", temporary, temporary, "--bind", str(ROOT), str(ROOT))
    return Windows(32, compiler, (*inside, wine), (*inside, server))


WINDOWS = {windows.bits: windows for windows in (windows_64(), windows_32())}


def make_locale():
    """Wine takes formats and the names of files from the locale, which few systems have."""
    if not (LOCALES / LANGUAGE).exists():
        LOCALES.mkdir(parents=True, exist_ok=True)
        subprocess.run(
            ["localedef", "-i", "de_DE", "-f", "UTF-8", LOCALES / LANGUAGE],
            check=True, capture_output=True,
        )


@dataclass
class Result:
    code: int
    lines: list[str]
    errors: str

    @property
    def text(self) -> str:
        return "\n".join(self.lines)


class Prefix:
    """A German Windows of its own."""

    def __init__(self, name: str, windows: Windows):
        make_locale()
        self.windows = windows
        self.folder = PREFIXES / f"{name}{windows.bits}"
        shutil.rmtree(self.folder, ignore_errors=True)
        home = PREFIXES / "home"
        home.mkdir(parents=True, exist_ok=True)
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(home),
            "WINEARCH": f"win{windows.bits}",
            "WINEPREFIX": str(self.folder),
            "WINESERVER": windows.server[-1],
            "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe=",
            "LC_ALL": LANGUAGE,
            "LOCPATH": str(LOCALES),
        }
        self.run("wineboot", "-i", timeout=180)
        # Windows itself writes days and months of a German date with two digits.
        self.run("reg", "add", r"HKCU\Control Panel\International", "/v", "sShortDate",
                 "/d", "dd.MM.yyyy", "/f")

    def run(self, *words, timeout=60, **variables) -> Result:
        # Into files: Wine's own processes keep a pipe open long after the program has ended.
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as errors:
            done = subprocess.run(
                [*self.windows.wine, *map(str, words)],
                env=self.environment | variables, cwd=self.folder.parent, timeout=timeout,
                stdin=subprocess.DEVNULL, stdout=out, stderr=errors,
            )
            texts = []
            for file in (out, errors):
                file.seek(0)
                texts.append(file.read().decode("utf-8", "replace").replace("\r\n", "\n"))
        return Result(done.returncode, texts[0].splitlines(), texts[1])

    def close(self):
        """Ends the prefix's own processes and takes it away."""
        subprocess.run([*self.windows.server, "-k"], env=self.environment, capture_output=True, timeout=60)
        shutil.rmtree(self.folder, ignore_errors=True)


def windows_path(path: Path) -> str:
    return f"Z:{path}".replace("/", "\\")
