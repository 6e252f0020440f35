import os
import pty
import subprocess
from pathlib import Path

import pytest

import cvdeveloper

CVDEV = Path(cvdeveloper.__file__).resolve().parents[2] / "bin" / "cvdev"


@pytest.fixture
def cvdev():
    """Runs the command line with text on its standard input."""

    def run(*arguments, text=""):
        return subprocess.run(
            [str(CVDEV), *map(str, arguments)],
            input=text,
            capture_output=True,
            text=True,
            check=False,
            timeout=120,
        )

    return run


@pytest.fixture
def cvdev_on_terminal():
    """Runs the command line on a terminal, types the lines when asked, gives code and screen."""

    def run(*arguments, lines=()):
        child, terminal = pty.fork()
        if child == 0:
            os.execv(CVDEV, [str(CVDEV), *map(str, arguments)])
        screen = b""
        left = list(lines)
        while True:
            try:
                piece = os.read(terminal, 10_000)
            except OSError:  # the other side is closed
                break
            if not piece:
                break
            screen += piece
            if left and screen.endswith(b": "):
                os.write(terminal, left.pop(0).encode() + b"\n")
        os.close(terminal)
        return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), screen.decode()

    return run


@pytest.fixture
def folder(tmp_path):
    cvdeveloper.host.create(tmp_path / "buero", sample=True)
    return tmp_path / "buero"
