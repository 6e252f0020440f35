"""Which machine a measurement comes from."""

import os
import platform
import sqlite3
from pathlib import Path


def processor() -> str:
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return platform.machine()


def memory() -> str:
    pages = os.sysconf("SC_PHYS_PAGES") * os.sysconf("SC_PAGE_SIZE")
    return f"{pages / (1 << 30):.0f} GiB"


def machine() -> str:
    return (f"{processor()}, {os.cpu_count()} processors, {memory()}, Linux {platform.release()}, "
            f"SQLite {sqlite3.sqlite_version}")
