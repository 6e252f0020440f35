"""The C++ tests, built for Windows and run under Wine as on a German system."""

import xml.etree.ElementTree as ElementTree

import pytest

from support import wine

WINDOWS = wine.WINDOWS[64]
TESTS = WINDOWS.build / "tests" / "cvdeveloper_windows_tests.exe"
COMMAND = WINDOWS.build / "bin" / "cvdev.exe"

REASON = WINDOWS.why_not(TESTS, COMMAND)
pytestmark = pytest.mark.skipif(REASON is not None, reason=REASON or "")


@pytest.fixture(scope="module")
def windows():
    prefix = wine.Prefix("platform", WINDOWS)
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


def test_programs_need_nothing_of_the_compilers_beside_them():
    for program in (TESTS, COMMAND):
        text = program.read_bytes().lower()
        for library in (b"libgcc_s", b"libstdc++-6.dll", b"libwinpthread-1.dll"):
            assert library not in text, f"{program.name}: {library}"


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
