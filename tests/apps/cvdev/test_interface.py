"""The command line's ways to print the interface."""

import subprocess
from pathlib import Path

import cvdeveloper

CVDEV = Path(cvdeveloper.__file__).resolve().parents[2] / "bin" / "cvdev"


def cvdev(*arguments):
    return subprocess.run(
        [str(CVDEV), "interface", *map(str, arguments)], capture_output=True, text=True, check=False
    )


def test_operations_are_listed_with_their_classes():
    assert "Application.AKT_Create" in cvdev().stdout.splitlines()


def test_writing_the_reference_makes_the_folder(tmp_path):
    folder = tmp_path / "docs" / "reference"
    assert cvdev("--reference", folder).returncode == 0
    assert (folder / "README.md").exists()
    assert "## AKT_Create" in (folder / "activities.md").read_text(encoding="utf-8")


def test_writing_the_reference_removes_pages_of_topics_that_are_gone_and_nothing_else(tmp_path):
    cvdev("--reference", tmp_path)
    page = (tmp_path / "activities.md").read_text(encoding="utf-8")
    (tmp_path / "gone.md").write_text(page, encoding="utf-8")
    (tmp_path / "notes.md").write_text("mine", encoding="utf-8")
    cvdev("--reference", tmp_path)
    assert not (tmp_path / "gone.md").exists()
    assert (tmp_path / "notes.md").read_text(encoding="utf-8") == "mine"


def test_the_reference_needs_a_folder():
    run = cvdev("--reference")
    assert run.returncode == 2
    assert "one FOLDER is needed" in run.stderr
