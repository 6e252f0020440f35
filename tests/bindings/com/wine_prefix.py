"""The built servers, and prefixes to register and run them in."""

from support import wine
from support.wine import BUILD, ROOT, Result, windows_path

__all__ = ["BUILD", "ROOT", "Prefix", "Result", "why_not", "windows_path"]


def why_not() -> str | None:
    return wine.why_not(BUILD / "bin" / "CVDeveloper.dll")


class Prefix(wine.Prefix):
    def program(self, name: str, *words) -> Result:
        return self.run(BUILD / "tests" / f"{name}.exe", *words)

    def register(self, dll: str, *flags) -> Result:
        return self.run("regsvr32", "/s", *flags, windows_path(BUILD / "bin" / dll))
