"""Reading the schema and its rows, as the host's loader does."""

import datetime
import pathlib
import re
import sqlite3

import pytest

FOLDER = pathlib.Path(__file__).parents[3] / "host" / "schema"
MAIN = ["AKT", "OBJ", "AD", "ANF", "AKTEN", "Projekte", "VERTRÄGE", "Details"]
# The column of each detail table that names the record, as the schema spells it.
OWNER = {main: main.upper() + "_DSN" for main in MAIN} | {"VERTRÄGE": "Verträge_Dsn"}
EPOCH = datetime.datetime(1899, 12, 30)


def fold(text):
    """Upper case one to one: a sharp s stays."""
    return "".join(c.upper() if len(c.upper()) == 1 else c for c in text.rstrip(" "))


def cvtext(left, right):
    left, right = fold(left), fold(right)
    return (left > right) - (left < right)


def read_csv(path):
    """Column names and rows. An empty cell is None; a quoted empty one is ''."""
    text = path.read_bytes().decode("utf-8")
    cell = re.compile(r'(?:"((?:[^"]|"")*)"|([^",\r\n]*))(,|\n)')
    rows, row, at = [], [], 0
    while at < len(text):
        match = cell.match(text, at)
        assert match, f"{path.name}: broken cell after {text[max(0, at - 40) : at]!r}"
        quoted, bare, end = match.groups()
        row.append(quoted.replace('""', '"') if quoted is not None else bare or None)
        if end == "\n":
            rows.append(row)
            row = []
        at = match.end()
    assert not row, f"{path.name}: the last line has no end"
    names, *rows = rows
    for number, row in enumerate(rows, 2):
        assert len(row) == len(names), f"{path.name}, row {number}: {len(row)} cells"
    return names, [dict(zip(names, row)) for row in rows]


def stored(text, declared):
    """A cell as the loader stores it; fails where it does not fit the declared type."""
    if text is None:
        return None
    kind, _, size = re.match(r"(\w+)(\((\d+)\))?", declared).groups()
    if kind in ("CHAR", "VARCHAR"):
        assert len(text.encode("utf-16-le")) // 2 <= int(size), f"{text!r} is longer than {size}"
        return text
    if kind == "LONGTEXT":
        return text
    if kind in ("SMALLINT", "INTEGER"):
        bits = 16 if kind == "SMALLINT" else 32
        assert -(2 ** (bits - 1)) <= int(text) < 2 ** (bits - 1), text
        return int(text)
    if kind == "DOUBLE":
        return float(text)
    assert kind == "DATETIME", f"no cells of type {kind}"
    assert re.fullmatch(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d", text), text
    return (datetime.datetime.fromisoformat(text) - EPOCH) / datetime.timedelta(days=1)


def empty_database():
    database = sqlite3.connect(":memory:")
    database.row_factory = sqlite3.Row
    database.create_collation("CVTEXT", cvtext)
    database.create_function("RIGHT", 2, lambda text, count: text[-count:])
    database.executescript((FOLDER / "schema.sql").read_text("utf-8"))
    return database


def load(database, folder):
    for path in sorted((FOLDER / folder).glob("*.csv")):
        table = path.stem
        types = {c["name"]: c["type"] for c in columns(database, table)}
        assert types, f"{path.name}: no such table"
        names, rows = read_csv(path)
        assert set(names) <= set(types), f"{path.name}: {set(names) - set(types)}"
        statement = (
            f"INSERT OR REPLACE INTO {table} ({', '.join(names)})"
            f" VALUES ({', '.join('?' * len(names))})"
        )
        for row in rows:
            try:
                values = [stored(row[n], types[n]) for n in names]
            except (AssertionError, ValueError) as problem:
                pytest.fail(f"{path.name}: {row.get('DSN')}: {problem}")
            database.execute(statement, values)


def tables(database):
    return [r["name"] for r in database.execute("SELECT name FROM sqlite_master WHERE type='table'")]


def columns(database, table):
    return database.execute(f"PRAGMA table_info({table})").fetchall()


def rows(database, table):
    return database.execute(f"SELECT * FROM {table}").fetchall()
