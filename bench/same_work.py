"""Checks that every side of a comparison does the same: after one run on offices of its own each
has written the same rows and as many lines of the log."""

import re
import sqlite3
from pathlib import Path

TABLES = ["AKT", "AKTDET", "AKTMKM", "Blob", "cv_counter"]
KEY = re.compile(r"[0-9A-F]{8}(?:-[0-9A-F]{4}){3}-[0-9A-F]{12}")


class Office:
    """What an office holds before it is worked on."""

    def __init__(self, folder: Path):
        self._rows = rows_of(folder)
        self._keys = {key for rows in self._rows.values() for row in rows for key in keys_in(row)}

    def changes(self, folder: Path) -> dict[str, list[str]]:
        """The rows that were written, by their tables; new keys are all alike. Lines of the log
        count as a table of their own."""
        changes = {}
        for table, rows in rows_of(folder).items():
            written = rows - self._rows[table]
            changes[table] = sorted(self._alike(row) for row in written)
        changes["log"] = ["line"] * lines_of_log(folder)
        return changes

    def _alike(self, row: str) -> str:
        return KEY.sub(lambda key: key[0] if key[0] in self._keys else "(new)", row)


def keys_in(row: str) -> list[str]:
    return KEY.findall(row)


def rows_of(folder: Path) -> dict[str, set[str]]:
    with sqlite3.connect(folder / "corvanta.db") as connection:
        return {table: {repr(row) for row in connection.execute(f"SELECT * FROM {table}")}
                for table in TABLES}


def lines_of_log(folder: Path) -> int:
    logs = (folder / name for name in ("peer.log", "cvDeveloper.log"))
    return sum(log.read_bytes().count(b"\r\n") for log in logs if log.exists())


def difference(one: dict[str, list[str]], other: dict[str, list[str]]) -> str:
    """The first thing that two sides did differently, or ""."""
    for table, rows in one.items():
        if len(rows) != len(other[table]):
            return f"{table}: {len(rows)} and {len(other[table])}"
        for left, right in zip(rows, other[table], strict=True):
            if left != right:
                return f"{table}:\n  {left}\n  {right}"
    return ""
