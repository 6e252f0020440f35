"""How bench/run measures: rounds, ratios, the table, and what it takes for the same work."""

import sqlite3
import sys
from pathlib import Path

import pytest

BENCH = Path(__file__).resolve().parents[2] / "bench"
sys.path.insert(0, str(BENCH))

import rounds  # noqa: E402
import same_work  # noqa: E402
import table  # noqa: E402
import workloads  # noqa: E402


def test_runs_fill_the_time_of_a_round():
    assert rounds.runs_for(lambda count: 1e6, seconds=0.25) == 250
    assert rounds.runs_for(lambda count: 2e9, seconds=0.25) == 1


def test_each_side_takes_its_turn_in_every_round_and_begins_one():
    order = []

    def side(name):
        return lambda count: order.append((name, count)) or 1.0

    times = rounds.interleaved({name: side(name) for name in "abc"}, count=5, rounds=3)
    assert "".join(name for name, _ in order) == "abcbcacab"
    assert {count for _, count in order} == {5}
    assert times == {name: [1.0, 1.0, 1.0] for name in "abc"}


def test_a_slow_round_slows_down_both_sides_and_leaves_the_ratio():
    assert rounds.ratio([2.0, 20.0, 2.2], [4.0, 40.0, 4.0]) == pytest.approx(0.5)


def test_table_shows_ratios_beside_their_aims(capsys):
    lines = [table.Line("get", "read", 1.031, 1.05, 9_040, {"soci": 1.5, "cp_and_sync": 2.0}),
             table.Line("memory", "a result", 0.8, None, None, note="1.0 MiB")]
    table.print_table(lines, ["soci"], {"soci": "SOCI"})
    assert capsys.readouterr().out == (
        "| ours | at most | what                    | 1.00 is | SOCI |\n"
        "| ---- | ------- | ----------------------- | ------- | ---- |\n"
        "| 1.03 | 1.05    | read (cp and sync 2.00) | 9.04 µs | 1.50 |\n"
        "| 0.80 |         | a result                | 1.0 MiB |      |\n")


def test_names_of_workloads_are_unique():
    names = [workload.name for workload in workloads.WORKLOADS]
    assert len(set(names)) == len(names)


def office(folder, rows):
    """A folder whose AKT has these rows of key, version and text."""
    folder.mkdir()
    with sqlite3.connect(folder / "corvanta.db") as connection:
        for name in same_work.TABLES:
            connection.execute(f"CREATE TABLE {name} (DSN, STAMP, Text)")
        connection.execute("CREATE TABLE cv_counter (name, prefix, last_number)")
        connection.executemany("INSERT INTO AKT VALUES (?, ?, ?)", rows)
    return folder


OLD = ("AC000000-0000-4000-8000-000000000001", 0, "alt")
ONE = "11111111-2222-4333-8444-555555555555"
OTHER = "99999999-2222-4333-8444-555555555555"


def test_new_keys_are_alike_and_other_differences_count(tmp_path):
    before = office(tmp_path / "before", [OLD])

    def written(name, *rows):
        return same_work.changes(before, office(tmp_path / name, rows))

    one = written("one", OLD, (ONE, 0, "neu"))
    assert one["AKT"] == ["('(new)', 0, 'neu')"]
    assert same_work.difference(one, written("same", OLD, (OTHER, 0, "neu"))) == ""
    assert "anders" in same_work.difference(one, written("text", OLD, (OTHER, 0, "anders")))
    assert same_work.difference(one, written("none", OLD)) == "AKT: 1 and 0"
    changed = written("changed", (OLD[0], 1, "neu"))
    assert changed["AKT"] == [f"('{OLD[0]}', 1, 'neu')"]


def test_lines_of_the_log_count_as_work(tmp_path):
    before = office(tmp_path / "before", [OLD])
    folder = office(tmp_path / "office", [OLD])
    silent = same_work.changes(before, folder)
    (folder / "peer.log").write_bytes(b"eine Zeile\r\n")
    assert same_work.difference(same_work.changes(before, folder), silent) == "log: 1 and 0"
