"""Calls through the Python module beside the same trivial methods bound with pybind11.

Writes the medians in the form of the C++ benchmarks, so that one script reads both.
"""

import json
import statistics
import sys
import timeit
from pathlib import Path

import cvdeveloper
import pybind_peer

REPETITIONS = 9
CALLS = 200_000


def median_ns(statement: str, names: dict) -> float:
    runs = timeit.repeat(statement, globals=names, number=CALLS, repeat=REPETITIONS)
    return statistics.median(runs) / CALLS * 1e9


def main() -> None:
    names = {"app": cvdeveloper.Application(), "tools": cvdeveloper.clsTools(),
             "peer": pybind_peer.Peer()}
    measured = {
        "python_get": "app.GetVersion()",
        "pybind_get": "peer.GetVersion()",
        "python_two_texts": "tools.vbLike('abc', 'abc')",
        "pybind_two_texts": "peer.vbLike('abc', 'abc')",
    }
    runs = [
        {"run_name": name, "aggregate_name": "median", "time_unit": "ns",
         "real_time": median_ns(statement, names)}
        for name, statement in measured.items()
    ]
    Path(sys.argv[1]).write_text(json.dumps({"benchmarks": runs}))


if __name__ == "__main__":
    main()
