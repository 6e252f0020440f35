"""Calls through the Python module beside the same trivial methods bound with pybind11.

    python_calls.py (module|pybind11) (get|two_texts) FOLDER (full|off)
"""

import sys
import time
import timeit
from pathlib import Path

BUILD = Path(__file__).resolve().parent.parent / "build" / "release"
sys.path[:0] = [str(BUILD / "python"), str(BUILD / "bench" / "python")]

import cvdeveloper  # noqa: E402
import pybind_peer  # noqa: E402

CALLS = {
    ("module", "get"): "app.GetVersion()",
    ("pybind11", "get"): "peer.GetVersion()",
    ("module", "two_texts"): "tools.vbLike('abc', 'abc')",
    ("pybind11", "two_texts"): "peer.vbLike('abc', 'abc')",
}


def main() -> None:
    names = {"app": cvdeveloper.Application(), "tools": cvdeveloper.clsTools(),
             "peer": pybind_peer.Peer()}
    timer = timeit.Timer(CALLS[sys.argv[1], sys.argv[2]], globals=names)
    print("ready", flush=True)
    for line in sys.stdin:
        processor = time.process_time_ns()
        wall = timer.timeit(int(line.removeprefix("run "))) * 1e9
        print(round(wall), time.process_time_ns() - processor, flush=True)


if __name__ == "__main__":
    main()
