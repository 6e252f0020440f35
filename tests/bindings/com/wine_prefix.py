"""Prefixes in which the built servers are registered and run."""

from pathlib import Path

from support import wine
from support.wine import ROOT, WINDOWS, Result, windows_path

__all__ = ["ROOT", "WINDOWS", "Prefix", "Result", "windows_path"]


class Prefix(wine.Prefix):
    def dll(self, name: str) -> Path:
        return self.windows.build / "bin" / name

    def program(self, name: str, *words) -> Result:
        return self.run(self.windows.build / "tests" / f"{name}.exe", *words)

    def register(self, dll: str, *flags) -> Result:
        return self.run("regsvr32", "/s", *flags, windows_path(self.dll(dll)))
