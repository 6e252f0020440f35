"""Measures the workloads and prints the ratios; bench/run builds what this needs."""

import argparse
import contextlib
import json
import os
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

import same_work
from machine import machine
from rounds import interleaved, ratio, runs_for
from table import Line, print_table
from worker import BUILD, ROOT, Worker
from workloads import GIBIBYTE, PEERS, WORKLOADS, Workload


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="bench/run", description=__doc__)
    parser.add_argument("filter", nargs="?", default=".", help="a regular expression over names")
    parser.add_argument("--peers", action="store_true",
                        help="SOCI, Qt, Python's sqlite3 and SQLAlchemy besides")
    parser.add_argument("--quick", action="store_true", help="short rounds and small files")
    parser.add_argument("--rounds", type=int, default=int(os.environ.get("REPETITIONS", "15")))
    parser.add_argument("--attachment", type=int, metavar="MIB", default=1024,
                        help="size of the attachments")
    parser.add_argument("--processor", action="store_true",
                        help="where nothing waits for the disk, processor time instead of the "
                             "wall's clock: for a machine that others use too")
    options = parser.parse_args()
    if options.quick:
        options.rounds, options.attachment = 3, min(options.attachment, 64)
    options.seconds = 0.02 if options.quick else 0.25
    return options


def base_folder(full_sync: bool) -> Path:
    """Where offices are made: memory without syncing, a real disk with it."""
    if full_sync:
        base = Path(os.environ.get("CVDEVELOPER_BENCH_DISK", ROOT / "build" / "bench"))
    else:
        memory = Path("/dev/shm")
        base = Path(os.environ.get("CVDEVELOPER_BENCH_FOLDER",
                                   memory if memory.is_dir() else tempfile.gettempdir()))
    base.mkdir(parents=True, exist_ok=True)
    return base


class Offices:
    """Offices made once and copied for each side that changes them."""

    def __init__(self, bytes_of_file: int, keep: contextlib.ExitStack):
        self._bytes = bytes_of_file
        self._keep = keep
        self._made: dict[tuple[str, bool], Path] = {}

    def get(self, name: str, full_sync: bool) -> Path:
        if (name, full_sync) not in self._made:
            folder = Path(self._keep.enter_context(tempfile.TemporaryDirectory(
                prefix="cvdeveloper-bench-", dir=base_folder(full_sync))))
            subprocess.run([BUILD / "bench" / "cvdeveloper_bench", "office", name, folder / name,
                            "full" if full_sync else "off", str(self._bytes)], check=True)
            self._made[name, full_sync] = folder / name
        return self._made[name, full_sync]


def sides_of(workload: Workload, with_peers: bool) -> list[str]:
    own = "module" if workload.base == "pybind11" else "library"
    sides = [own, *([workload.base] if workload.times else []), *workload.rivals]
    return sides + (list(PEERS) if with_peers and workload.has_peers else [])


def start(workload: Workload, side: str, offices: Offices, keep: contextlib.ExitStack) -> Worker:
    folder = Path()
    environment = dict(os.environ)
    if workload.office:
        folder = offices.get(workload.office, workload.full_sync)
        if not workload.shares_office:
            copy = keep.enter_context(tempfile.TemporaryDirectory(dir=folder.parent))
            folder = Path(shutil.copytree(folder, Path(copy) / "office"))
        environment["TMPDIR"] = str(folder)
    worker = Worker(side, workload.operation, folder, workload.full_sync, environment)
    keep.callback(worker.close)
    return worker


def check_same_work(workload: Workload, offices: Offices, options: argparse.Namespace) -> None:
    """One run of each side, and what it has written."""
    if not workload.office or workload.shares_office:
        return
    before = offices.get(workload.office, workload.full_sync)
    done = {}
    for side in sides_of(workload, options.peers):
        with contextlib.ExitStack() as keep:
            worker = start(workload, side, offices, keep)
            worker.run(1)
            done[side] = same_work.changes(before, worker.folder)
    for side, changes in done.items():
        if found := same_work.difference(changes, done[workload.base]):
            sys.exit(f"{workload.name}: {side} and {workload.base} differ in {found}")


def mebibytes(size: float) -> str:
    return f"{size / (1 << 20):.1f} MiB"


def measure(workload: Workload, offices: Offices, options: argparse.Namespace) -> list[Line]:
    size = options.attachment
    what = workload.what.format(size=f"{size // 1024} GiB" if size >= 1024 else f"{size} MiB")
    with contextlib.ExitStack() as keep:
        workers = {side: start(workload, side, offices, keep)
                   for side in sides_of(workload, options.peers)}
        own = next(iter(workers.values()))
        for worker in workers.values():
            worker.by_processor = options.processor and not workload.full_sync
        lines = []
        if workload.times:
            runs = {side: worker.run for side, worker in workers.items()}
            for run in runs.values():
                run(1)
            count = workload.runs or runs_for(runs[workload.base], options.seconds)
            on_disk = workload.full_sync
            times = interleaved(runs, count, min(options.rounds, workload.most_rounds),
                                os.sync if on_disk else lambda: None)
            base = times[workload.base]
            others = {side: ratio(times[side], base) for side in workers
                      if side not in (own.side, workload.base)}
            lines.append(Line(workload.name, what, ratio(times[own.side], base), workload.aim,
                              statistics.median(base), others))
        else:
            own.run(1)
        if workload.memory_aim:
            needed, allowed = own.memory()
            allowed = allowed or 64 << 20
            lines.append(Line(
                workload.name,
                f"{what}, its memory / 64 MiB" if workload.times else what,
                needed / allowed, 1.0, None,
                note=f"{mebibytes(needed)} of {mebibytes(allowed)}"))
    return lines


def main() -> None:
    options = arguments()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped"))  # offices go with it
    chosen = [workload for workload in WORKLOADS if re.search(options.filter, workload.name)]
    if not chosen:
        sys.exit(f"no workload matches '{options.filter}': "
                 + ", ".join(workload.name for workload in WORKLOADS))
    lines = []
    with contextlib.ExitStack() as keep:
        offices = Offices(options.attachment * GIBIBYTE // 1024, keep)
        for workload in chosen:
            print(f"{workload.name} ...", end=" ", file=sys.stderr, flush=True)
            check_same_work(workload, offices, options)
            lines += measure(workload, offices, options)
            print(f"{lines[-1].ratio:.2f}", file=sys.stderr)
    results = ROOT / "build" / "results"
    results.mkdir(parents=True, exist_ok=True)
    (results / "bench.json").write_text(
        json.dumps({"machine": machine(), "lines": [vars(line) for line in lines]}, indent=1))
    print(machine() + "\n")
    print_table(lines, list(PEERS) if options.peers else [], PEERS)


if __name__ == "__main__":
    main()
