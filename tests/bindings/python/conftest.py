import gc
import os
import shutil
import subprocess
import sys

import pytest
from doubles import Host

import cvdeveloper


@pytest.fixture(autouse=True)
def fresh_registry():
    """What a test registers does not reach the next one."""
    yield
    cvdeveloper.reset_registry()
    cvdeveloper.set_message_handler(None)


@pytest.fixture
def messages():
    """The texts of the message boxes that are shown."""
    shown = []
    cvdeveloper.set_message_handler(shown.append)
    return shown


@pytest.fixture(scope="session")
def sample_folder(tmp_path_factory):
    folder = tmp_path_factory.mktemp("muster") / "buero"
    cvdeveloper.host.create(folder, sample=True)
    return folder


@pytest.fixture
def folder(sample_folder, tmp_path):
    """A host folder with the sample office, a test's own."""
    return shutil.copytree(sample_folder, tmp_path / "buero")


@pytest.fixture
def app(folder, tmp_path):
    """An Application on the stand-alone host."""
    with cvdeveloper.connect(folder) as app:
        app.LogPath = str(tmp_path)
        yield app


@pytest.fixture
def host():
    return Host()


@pytest.fixture
def attached(host, tmp_path):
    """An Application attached to a host written in Python."""
    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    app.Corvanta_SetApplication(host)
    yield app
    app.Corvanta_Done()


@pytest.fixture
def log_lines(tmp_path):
    """Gives the lines of the diagnostic log, without their times."""

    def read():
        log = tmp_path / "cvDeveloper.log"
        text = log.read_text(encoding="utf-8") if log.exists() else ""
        return [line.split(" - ", 1)[-1].strip(" ") for line in text.splitlines()]

    return read


@pytest.fixture
def run_python():
    """Runs a script in an interpreter of its own and gives what it prints; fails where it fails."""

    def run(script, **more):
        done = subprocess.run(
            [sys.executable, "-X", "faulthandler", "-c", script],
            capture_output=True,
            text=True,
            timeout=120,
            env=os.environ | {"PYTHONPATH": os.pathsep.join(sys.path)},
            check=False,
            **more,
        )
        assert (done.returncode, done.stderr) == (0, "")
        return done.stdout

    return run


@pytest.fixture
def collected():
    """Has the garbage collector run until it finds nothing more."""

    def collect():
        while gc.collect():
            pass

    return collect
