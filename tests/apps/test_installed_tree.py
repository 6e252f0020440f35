"""What an installation brings along suffices, wherever it lies."""

import os
import shutil
import subprocess
from pathlib import Path

import pytest

import cvdeveloper

BUILD = Path(cvdeveloper.__file__).resolve().parents[2]
ROOT = Path(__file__).resolve().parents[2]
# Nothing in it tells where this build's parts are.
ENVIRONMENT = {
    name: value
    for name, value in os.environ.items()
    if name not in ("PYTHONPATH", "CVDEVELOPER_SCHEMA")
}


@pytest.fixture(scope="module")
def installed(tmp_path_factory):
    """The tree of an installation, moved to where no build has ever been."""
    prefix = tmp_path_factory.mktemp("installation") / "usr"
    subprocess.run(
        ["cmake", "--install", str(BUILD), "--prefix", str(prefix)], capture_output=True, check=True
    )
    return Path(shutil.move(prefix, prefix.with_name("anderswo")))


def python_folder(installed):
    (package,) = installed.glob("lib/python3*/dist-packages/cvdeveloper")
    return package.parent


def run(*arguments, **environment):
    return subprocess.run(
        list(map(str, arguments)),
        env=ENVIRONMENT | environment,
        capture_output=True,
        text=True,
        check=False,
        stdin=subprocess.DEVNULL,
    )


def without_the_source_tree(*arguments, **environment):
    """Runs where the source tree's schema is out of sight; None where the system does not allow it."""
    hide = f'mount -t tmpfs none "{ROOT}/host/schema" && exec "$@"'
    allowed = run("unshare", "-m", "sh", "-c", f'mount -t tmpfs none "{ROOT}/host/schema"')
    if allowed.returncode != 0:
        return None
    return run("unshare", "-m", "sh", "-c", hide, "sh", *arguments, **environment)


def test_the_schema_comes_along(installed):
    schema = installed / "share" / "cvdeveloper" / "schema"
    for name in ("schema.sql", "base/Std.csv", "sample/AD.csv", "upgrades/version-2.sql"):
        assert (schema / name).read_bytes() == (ROOT / "host" / "schema" / name).read_bytes()


def test_the_command_line_makes_a_folder_with_its_own_schema(installed, tmp_path):
    cvdev = installed / "bin" / "cvdev"
    done = without_the_source_tree(cvdev, "init", tmp_path / "buero", "--sample")
    done = done or run(cvdev, "init", tmp_path / "buero", "--sample")
    assert done.returncode == 0, done.stderr
    assert run(cvdev, "check", tmp_path / "buero").returncode == 0


def test_the_command_line_knows_itself_through_path_and_link(installed, tmp_path):
    schema = installed / "share" / "cvdeveloper" / "schema" / "base" / "Std.csv"
    before = schema.read_bytes()
    (tmp_path / "cvdev").symlink_to(installed / "bin" / "cvdev")
    schema.rename(schema.with_suffix(".weg"))
    (schema.parent / "Std.csv").write_text("DSN,Unbekannt\n1,2\n")
    try:
        done = run("cvdev", "init", tmp_path / "a", PATH=f"{tmp_path}:/usr/bin")
        assert "Unbekannt" in done.stderr, "another schema was read"
    finally:
        schema.write_bytes(before)
        schema.with_suffix(".weg").unlink()


def test_the_python_package_makes_a_folder_with_its_own_schema(installed, tmp_path):
    script = (
        "import sys, cvdeveloper\n"
        "cvdeveloper.host.create(sys.argv[1], sample=True)\n"
        "with cvdeveloper.connect(sys.argv[1]) as app: print(app.AD_Find('1=1').EOF)\n"
        "print(cvdeveloper.__file__)\n"
    )
    arguments = ("/usr/bin/python3", "-c", script, tmp_path / "buero")
    package = {"PYTHONPATH": str(python_folder(installed))}
    done = without_the_source_tree(*arguments, **package) or run(*arguments, **package)
    assert done.stderr == ""
    assert done.stdout == f"False\n{python_folder(installed)}/cvdeveloper/__init__.py\n"


def test_the_shell_uses_the_installed_package(installed, tmp_path):
    run(installed / "bin" / "cvdev", "init", tmp_path / "buero")
    done = subprocess.run(
        [str(installed / "bin" / "cvdev"), "shell", str(tmp_path / "buero")],
        input="print(cvdeveloper.__file__)\n",
        capture_output=True,
        text=True,
        check=False,
        env=ENVIRONMENT,
    )
    assert f"{python_folder(installed)}/cvdeveloper/__init__.py" in done.stdout


def test_another_schema_folder_can_be_named(installed, tmp_path):
    done = run(
        installed / "bin" / "cvdev", "init", tmp_path / "buero", CVDEVELOPER_SCHEMA=tmp_path / "weg"
    )
    assert done.returncode == 1
    assert done.stderr == (
        f"cvdev: Die Datei '{tmp_path}/weg/schema.sql', aus der neue Datenbanken entstehen, fehlt.\n"
    )
    assert not (tmp_path / "buero").exists()
