"""Operations give a script under Windows what they give C++ and Python: all run the same steps.

tests/tools/behaviour_scripts_test.cpp and tests/bindings/python/test_behaviour_scripts.py hold the
other two to the results that stand in the files; this compares line by line what VBScript gives.
"""

import re

import pytest

from wine_prefix import ROOT

SCRIPTS = ROOT / "tests" / "tools"

DRIVER = """
Dim target, out(2), value
Sub Say(kind)
    If Err.Number <> 0 Then
        WScript.Echo "error " & Err.Number
    ElseIf kind = "out" Then
        WScript.Echo out(0) & "|" & out(1) & "|" & out(2)
    ElseIf kind = "call" Or kind = "get" Or kind = "text" Then
        Dim text: text = value & ""
        text = Replace(Replace(Replace(text, vbTab, "\\t"), vbCr, "\\r"), vbLf, "\\n")
        WScript.Echo text
    Else
        WScript.Echo ""
    End If
    Err.Clear
End Sub
On Error Resume Next
"""
ESCAPES = {"\\t": "vbTab", "\\r": "vbCr", "\\n": "vbLf"}


def literal(text: str) -> str:
    """A text with the names of characters and variables joined in."""
    parts = re.split(r"(\\[trn]|\$[a-z]+)", text)
    return " & ".join(
        ESCAPES.get(part) or (f"v_{part[1:]}" if part.startswith("$") else
                              '"' + part.replace('"', '""') + '"')
        for part in parts if part or len(parts) == 1
    )


class Writer:
    """Writes a script's steps as statements."""

    def __init__(self):
        self.variables = set()
        self.objects = set()

    def argument(self, text: str) -> str:
        name = text[1:]
        if text[:1] not in ("$", "&") or name not in self.variables:
            return literal(text)
        if text.startswith("&") or name in self.objects:
            return f"v_{name}"
        return f"(v_{name})"  # in brackets, so that the operation cannot change it

    def operation(self, kind: str, words: str) -> str:
        path, *arguments = words.split("|")
        path = f"v_{path[1:]}" if path.startswith("$") else f"target.{path}"
        given = [self.argument(argument) for argument in arguments]
        if kind == "out":
            return f"{path} {', '.join([*given, 'out(0)', 'out(1)', 'out(2)'])}"
        if kind == "put":
            index = f"({', '.join(given[:-1])})" if len(given) > 1 else ""
            return f"{path}{index} = {given[-1]}"
        return path + (f"({', '.join(given)})" if given else "")

    def statements(self, kind: str, words: str) -> list[str]:
        if kind == "new":
            return [f'Set target = CreateObject("CVDeveloper.{words}")']
        if kind == "connect":
            return ['Set target = CreateObject("CVDeveloper.Application")',
                    'target.Corvanta_InitConnector WScript.Arguments(0), "chef", ""']
        if kind == "text":
            return [f"value = {literal(words)}"]
        if kind in ("let", "set"):
            name, how, words = words.split(" ", 2)
            right = literal(words) if how == "text" else self.operation(how, words)
            self.variables.add(name)
            if kind == "let":
                return [f"v_{name} = {right}"]
            self.objects.add(name)
            return [f"Set v_{name} = {right}"]
        if kind in ("put", "out"):
            return [self.operation(kind, words)]
        return ["value = Empty", f"value = {self.operation(kind, words)}"]


@pytest.mark.parametrize(("script", "least"), [("list_script", 50), ("behaviour_script", 120)])
def test_operations_give_what_stands_beside_them(script, least, run_script, office):
    writer, lines, expected = Writer(), [DRIVER], []
    for line in (SCRIPTS / f"{script}.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            step, _, result = line.partition(" =>")
            kind, _, words = step.partition(" ")
            lines += [*writer.statements(kind, words), f'Say "{kind}"']
            expected.append((step, result.removeprefix(" ")))
    assert len(expected) > least
    found = run_script("\n".join(lines), office).lines
    shown = [(step, line) for (step, _), line in zip(expected, found)]
    assert shown == expected
    assert len(found) == len(expected)
