"""A worker process: one side doing one workload, on command."""

import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "release"

CPP_PEERS = {"soci": "soci_peer", "qt_query": "qt_peer", "qt_model": "qt_peer"}
PYTHON_WORKERS = {
    "python_sqlite3": "peers/python_sqlite3.py",
    "sqlalchemy": "peers/sqlalchemy_peer.py",
    "pybind11": "python_calls.py",
    "module": "python_calls.py",
}


def command_of(side: str) -> list[str]:
    if side in PYTHON_WORKERS:
        return ["/usr/bin/python3", str(ROOT / "bench" / PYTHON_WORKERS[side])]
    return [str(BUILD / "bench" / CPP_PEERS.get(side, "cvdeveloper_bench"))]


class Worker:
    def __init__(self, side: str, operation: str, folder: Path, full_sync: bool, env: dict):
        words = [side, operation, str(folder), "full" if full_sync else "off"]
        self.process = subprocess.Popen(
            command_of(side) + words, env=env, text=True,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE,
        )
        self.side = side
        if self._answer() != "ready":
            raise RuntimeError(f"{side} does not answer as a worker")

    def _answer(self) -> str:
        line = self.process.stdout.readline()
        if not line:
            raise RuntimeError(f"{self.side} ended with {self.process.wait()}")
        return line.strip()

    def _ask(self, order: str) -> str:
        self.process.stdin.write(order + "\n")
        self.process.stdin.flush()
        return self._answer()

    def run(self, count: int) -> float:
        """Nanoseconds of one run, as the mean of so many."""
        return int(self._ask(f"run {count}")) / count

    def memory(self) -> tuple[int, int]:
        """Bytes needed at most beyond the idle process, and bytes allowed (0: not known)."""
        needed, allowed = self._ask("memory").split()
        return int(needed), int(allowed)

    def close(self) -> None:
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()
