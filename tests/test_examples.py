"""The examples run on a fresh sample office."""

import subprocess
import sys
from pathlib import Path

import pytest

import cvdeveloper

EXAMPLES = sorted((Path(__file__).resolve().parent.parent / "examples").glob("*.py"))


@pytest.mark.parametrize("example", EXAMPLES, ids=lambda path: path.stem)
def test_example_runs_on_a_fresh_sample_office(example, tmp_path):
    folder = tmp_path / "buero"
    cvdeveloper.host.create(str(folder), sample=True)
    run = subprocess.run(
        [sys.executable, str(example), str(folder)], capture_output=True, text=True, check=False
    )
    assert run.stderr == ""
    assert run.returncode == 0
    assert run.stdout


def test_the_log_of_the_first_record_holds_every_statement_and_row(tmp_path):
    folder = tmp_path / "buero"
    cvdeveloper.host.create(str(folder), sample=True)
    subprocess.run(
        [sys.executable, str(EXAMPLES[0].parent / "erster_eintrag.py"), str(folder)],
        capture_output=True,
        check=True,
    )
    log = (folder / "cvDeveloper.log").read_text(encoding="utf-8")
    assert " - GetRecordset : SELECT * FROM AKT  WHERE 1=2" in log
    assert " - EOF=true in  : SQL: SELECT * FROM AKT  WHERE 1=2" in log
    assert " - UpdateRecordset : " in log
    assert "\n                      Subject = Anruf von Frau Muster" in log
