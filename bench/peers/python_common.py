"""What the peers in Python share: the workers' protocol, places, keys and the log."""

import random
import re
import sys
import time
import uuid
from collections.abc import Callable
from pathlib import Path

BENCH = Path(__file__).resolve().parent.parent
TEXT_ORDER = str(BENCH.parent / "build" / "release" / "bench" / "text_order.so")
USER = "BE000000-0000-4000-8000-000000000001"
FEATURES = 5
COPIED_PROJECT = 9001
FOUND_FIELDS = ["DSN", "Kennung", "Subject", "Datum", "Erledigt",
                "Ben_Dsn", "AD_Dsn", "Status", "Km", "TOUCH"]
USER_FEATURES = [f"STD_MKM{number}" for number in range(1, 6)]


def read_statements() -> dict[str, str]:
    text = (BENCH / "statements.sql").read_text(encoding="utf-8")
    parts = re.split(r"^-- name: (\w+)\n", text, flags=re.MULTILINE)[1:]
    return {name: " ".join(line for line in body.splitlines() if line and line[:2] != "--")
            for name, body in zip(parts[::2], parts[1::2], strict=True)}


STATEMENTS = read_statements()


def field_kind_key(number: int) -> str:
    return f"F0000000-0000-4000-8000-{number:012d}"


def project_key(number: int) -> str:
    return f"B0000000-0000-4000-8000-{number:012d}"


class Places:
    """The same scattered places as on the other sides."""

    def __init__(self):
        self._place = self._kind = self._project = 0

    def next_activity(self) -> str:
        self._place = (self._place + 61803) % 100000
        return f"A0000000-0000-4000-8000-{self._place:012d}"

    def next_field_kind(self) -> str:
        self._kind = (self._kind + 3) % 10
        return field_kind_key(self._kind)

    def next_project(self) -> str:
        self._project = (self._project + 37) % 100
        return project_key(self._project)


def new_key() -> str:
    """As the library makes them: later keys sort behind earlier ones."""
    milliseconds, rest = divmod(time.time_ns(), 1_000_000)
    ordered = milliseconds << 16 | 0x7000 | rest * 4096 // 1_000_000
    return str(uuid.UUID(int=ordered << 64 | 2 << 62 | random.getrandbits(62))).upper()


def human_key(prefix: str, number: int) -> str:
    return f"{prefix}{number}".ljust(10)


def standard_rights(templates: str) -> str:
    return templates.splitlines()[3].partition("|")[2]


def insert_text(table: str, columns: list[str]) -> str:
    names = ", ".join(f'"{column}"' for column in columns)
    return f"INSERT INTO {table} ({names}) VALUES ({', '.join('?' * len(columns))})"


class Log:
    def __init__(self, folder: str):
        self._file = folder + "/peer.log"

    def empty_result(self, sql: str) -> None:
        stamp = time.strftime("%d.%m.%Y %H:%M:%S")
        with open(self._file, "ab", buffering=0) as file:
            file.write(f"{stamp} - EOF=true in  : SQL: {sql}\r\n".encode())


def serve(run: Callable[[], None]) -> None:
    print("ready", flush=True)
    for line in sys.stdin:
        order, _, count = line.partition(" ")
        if order == "run":
            processor, wall = time.process_time_ns(), time.perf_counter_ns()
            for _ in range(int(count)):
                run()
            print(time.perf_counter_ns() - wall, time.process_time_ns() - processor, flush=True)
