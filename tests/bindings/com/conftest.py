"""The server under Wine: a fresh prefix of its own, scripts and programs run in it."""

import shutil
import subprocess

import pytest

from wine_prefix import ROOT, WINDOWS, Prefix, Result, windows_path


@pytest.fixture(scope="session", params=WINDOWS.values(), ids=lambda windows: f"{windows.bits} bit")
def windows(request):
    """Everything is tried with the 64-bit servers and with the 32-bit ones."""
    reason = request.param.why_not(request.param.build / "bin" / "CVDeveloper.dll")
    if reason is not None:
        pytest.skip(reason)
    return request.param


@pytest.fixture(scope="session")
def new_prefix(windows):
    made = []

    def make(name: str) -> Prefix:
        made.append(Prefix(name, windows))
        return made[-1]

    yield make
    for prefix in made:
        prefix.close()


@pytest.fixture(scope="session")
def prefix(new_prefix):
    """A prefix in which both servers are registered."""
    fresh = new_prefix("tests")
    for dll in ("CVDeveloper.dll", "CVConnector.dll"):
        assert fresh.register(dll).code == 0
    return fresh


@pytest.fixture
def run_script(prefix, tmp_path):
    """Runs VBScript text; it must end well unless the test asks for the result itself."""

    def run(text: str, *words, check=True, ending="vbs") -> Result:
        file = tmp_path / f"script.{ending}"
        file.write_text(text, encoding="utf-8")
        result = prefix.program("script_host", file, *words)
        assert not check or result.code == 0, result.errors + result.text
        return result

    return run


@pytest.fixture
def lines_of(run_script):
    """The lines that a script prints."""

    def run(text: str, *words) -> list[str]:
        return run_script(text, *words).lines

    return run


@pytest.fixture(scope="session")
def sample(tmp_path_factory):
    folder = tmp_path_factory.mktemp("office") / "buero"
    cvdev = ROOT / "build" / "release" / "bin" / "cvdev"
    subprocess.run([cvdev, "init", folder, "--sample"], check=True, capture_output=True)
    return folder


@pytest.fixture
def office(sample, tmp_path):
    """A host folder with the sample office, a test's own."""
    folder = tmp_path / "buero"
    shutil.copytree(sample, folder)
    return windows_path(folder)
