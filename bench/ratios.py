"""Prints the ratios that the benchmarks are about, beside what they must reach."""

import json
import sys
from pathlib import Path

# what, measured, beside which peer, at most
RATIOS = [
    ("call by name with conversions / virtual call", "dispatch_by_name", "virtual_call", 20),
    ("AKT_Create / the same by hand, committing each write", "create_activity",
     "create_activity_by_hand", 0.5),
    ("Det_GetValue among 1,000,000 details / the same by hand", "get_detail",
     "get_detail_by_hand", 1.05),
    ("Det_SetValue / the same by hand", "set_detail", "set_detail_by_hand", 1.05),
    ("Mkm_Add of five features / the same by hand, committing each write", "add_five_features",
     "add_five_features_by_hand", 0.5),
    ("Python call without arguments / pybind11", "python_get", "pybind_get", 1.0),
    ("Python call with two texts / pybind11", "python_two_texts", "pybind_two_texts", 1.0),
]


def medians(paths: list[str]) -> dict[str, float]:
    """The median of each benchmark's times in nanoseconds, by its name."""
    units = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
    times = {}
    for path in paths:
        for run in json.loads(Path(path).read_text())["benchmarks"]:
            if run.get("aggregate_name") == "median":
                name = run["run_name"].split("/")[0]
                times[name] = run["real_time"] * units[run["time_unit"]]
    return times


def main() -> None:
    times = medians(sys.argv[1:])
    print(f"{'ratio':>8}  {'at most':>8}  what")
    for what, measured, peer, limit in RATIOS:
        if measured in times and peer in times:
            ratio = times[measured] / times[peer]
            print(f"{ratio:8.2f}  {limit:8.2f}  {what}"
                  f"  ({times[measured]:,.0f} ns / {times[peer]:,.0f} ns)")


if __name__ == "__main__":
    main()
