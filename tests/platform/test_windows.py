"""The C++ tests, built for Windows and run under Wine as on a German system."""

import re
import xml.etree.ElementTree as ElementTree

import pytest

from support import wine

TESTS = wine.BUILD / "tests" / "cvdeveloper_windows_tests.exe"
COMMAND = wine.BUILD / "bin" / "cvdev.exe"

REASON = wine.why_not(TESTS, COMMAND)
pytestmark = pytest.mark.skipif(REASON is not None, reason=REASON or "")


@pytest.fixture(scope="module")
def windows():
    prefix = wine.Prefix("platform")
    yield prefix
    prefix.close()


def test_the_cpp_tests_pass_on_windows(windows, tmp_path):
    report = tmp_path / "report.xml"
    result = windows.run(
        TESTS, "--gtest_brief=1", f"--gtest_output=xml:{wine.windows_path(report)}", timeout=900
    )
    counts = ElementTree.parse(report).getroot()
    assert result.code == 0, result.text[-5000:]
    assert counts.get("failures") == "0"
    assert int(counts.get("tests")) > 800


def test_libraries_need_nothing_beside_them(windows):
    imported = set(re.findall(rb"[A-Za-z0-9_.-]+\.dll", TESTS.read_bytes(), re.IGNORECASE))
    assert not {name for name in imported if name.lower().startswith((b"libgcc", b"libstdc", b"libwinpthread"))}


def test_cvdev_makes_a_host_folder(windows, tmp_path):
    folder = tmp_path / "büro"
    result = windows.run(COMMAND, "init", wine.windows_path(folder), "--sample")
    assert result.code == 0, result.errors
    assert result.lines == [
        f"{wine.windows_path(folder)} ist angelegt, mit Beispieldaten. "
        "Benutzer: chef, Kennwort: leer."
    ]
    assert {entry.name for entry in folder.iterdir()} == {
        "Anlagen", "corvanta.db", "corvanta.ini", "pic.obj"
    }
