"""The snippets of the documentation run and print what stands beside them."""

import ast
import inspect
import re
import subprocess
import sys
from pathlib import Path

import pytest

import cvdeveloper

ROOT = Path(__file__).resolve().parent.parent
PAGES = sorted((ROOT / "docs").glob("*.md"))
BLOCK = re.compile(r"```python\n(?P<code>.*?)```(?:\n\n```text\n(?P<output>.*?)```)?", re.DOTALL)
OBJECTS = {"app": cvdeveloper.Application, "tools": cvdeveloper.clsTools}


def snippets():
    for page in PAGES:
        text = page.read_text(encoding="utf-8")
        for number, block in enumerate(BLOCK.finditer(text), 1):
            yield pytest.param(block["code"], block["output"], id=f"{page.stem}-{number}")


@pytest.fixture(scope="module")
def prepared(tmp_path_factory):
    folder = tmp_path_factory.mktemp("docs") / "buero"
    cvdeveloper.host.create(str(folder), sample=True)
    return folder


@pytest.mark.parametrize(("code", "output"), snippets())
def test_snippet_runs_beside_a_fresh_sample_folder(code, output, prepared, tmp_path):
    subprocess.run(["cp", "-r", str(prepared), str(tmp_path / "buero")], check=True)
    run = subprocess.run(
        [sys.executable, "-c", code], cwd=tmp_path, capture_output=True, text=True, check=False
    )
    assert run.stderr == ""
    assert run.returncode == 0
    if output is not None:
        assert run.stdout == output


def reference_examples():
    for page in sorted((ROOT / "docs" / "reference").glob("*.md")):
        for block in BLOCK.finditer(page.read_text(encoding="utf-8")):
            yield page.stem, block["code"]


def test_examples_of_the_reference_are_python():
    examples = list(reference_examples())
    assert len(examples) > 400
    for _, code in examples:
        ast.parse(code)


def owner_of(call):
    """The class that "app.X", "tools.X", "app.oBase.X" and the like call, or None."""
    value = call.func.value
    if isinstance(value, ast.Attribute):
        return {
            "oBase": cvdeveloper.clsBase,
            "oTools": cvdeveloper.clsTools,
            "oFileSystem": cvdeveloper.clsFileSystem,
        }.get(value.attr)
    return OBJECTS.get(value.id) if isinstance(value, ast.Name) else None


def test_examples_of_the_reference_pass_arguments_that_there_are():
    checked = 0
    for _, code in reference_examples():
        for call in ast.walk(ast.parse(code)):
            if not isinstance(call, ast.Call) or not isinstance(call.func, ast.Attribute):
                continue
            owner = owner_of(call)
            if owner is None:
                continue
            operation = getattr(owner, call.func.attr)
            names = {keyword.arg: None for keyword in call.keywords}
            inspect.signature(operation).bind(None, *call.args, **names)
            checked += 1
    assert checked > 350


def test_links_between_the_pages_lead_somewhere():
    pages = [*PAGES, *(ROOT / "docs" / "reference").glob("*.md")]
    for page in pages:
        text = page.read_text(encoding="utf-8")
        for target in re.findall(r"\]\(([^)#:\s]+)(?:#[^)]*)?\)", text):
            assert (page.parent / target).exists(), f"{page.name} links to {target}"
