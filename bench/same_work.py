"""Checks that every side of a comparison does the same: after one run on offices of its own each
has written the same rows and as many lines of the log."""

import contextlib
import re
import sqlite3
from pathlib import Path

TABLES = ["AKT", "AKTDET", "AKTMKM", "Blob"]
KEY = re.compile(r"[0-9A-F]{8}(?:-[0-9A-F]{4}){3}-[0-9A-F]{12}")
MADE_WITH_THE_OFFICE = "-0000-4000-8000-"  # stands in every such key, and in no key made at random

WRITTEN = """
    SELECT now.* FROM {table} AS now LEFT JOIN before.{table} AS before ON before.rowid = now.rowid
    WHERE before.rowid IS NULL OR before.STAMP <> now.STAMP"""


def changes(before: Path, folder: Path) -> dict[str, list[str]]:
    """The rows that were written since an office was copied, by their tables; new keys are all
    alike. Lines of the log count as a table of their own."""
    written = {"log": ["line"] * lines_of_log(folder)}
    with contextlib.closing(sqlite3.connect(folder / "corvanta.db")) as connection:
        connection.execute("ATTACH ? AS before", (str(before / "corvanta.db"),))
        for table in TABLES:
            rows = connection.execute(WRITTEN.format(table=table))
            written[table] = sorted(alike(repr(row)) for row in rows)
        rows = connection.execute("SELECT name, prefix, last_number FROM cv_counter")
        written["cv_counter"] = sorted(repr(row) for row in rows)
    return written


def alike(row: str) -> str:
    return KEY.sub(lambda key: key[0] if MADE_WITH_THE_OFFICE in key[0] else "(new)", row)


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
