"""Operations give in Python what they give in C++ and VBScript: all run the same scripts."""

import re
from pathlib import Path

import pytest

import cvdeveloper

SCRIPTS = Path(__file__).resolve().parents[2] / "tools"


def unescaped(text):
    return text.replace("\\t", "\t").replace("\\r", "\r").replace("\\n", "\n")


def as_text(value):
    if value in (None, cvdeveloper.Empty):
        return ""
    if isinstance(value, bool):
        return "Wahr" if value else "Falsch"
    if isinstance(value, float):
        return f"{value:.15g}".replace(".", ",")
    return str(value)


class Run:
    """Goes through a script; a variable is a Ref, which an operation can change."""

    def __init__(self, connect):
        self.connect = connect
        self.target = None
        self.variables = {}

    def inserted(self, text):
        return re.sub(r"\$([a-z]+)", lambda name: as_text(self.variables[name[1]].value), text)

    def argument(self, text):
        variable = self.variables.get(text[1:])
        if text.startswith("&") and variable:
            return variable
        if text.startswith("$") and variable:
            return variable.value
        return self.inserted(unescaped(text))

    def owner_of(self, path):
        *steps, member = path.split(".")
        owner = self.target
        if path.startswith("$"):
            owner = self.variables[steps.pop(0)[1:]].value
        for step in steps:
            owner = getattr(owner, step)
        return owner, member

    def value(self, kind, words):
        if kind == "text":
            return self.inserted(unescaped(words))
        path, *arguments = words.split("|")
        owner, name = self.owner_of(path)
        arguments = [self.argument(argument) for argument in arguments]
        if kind == "out":
            out = [cvdeveloper.Ref("") for _ in range(3)]
            getattr(owner, name)(*arguments, *out)
            return "|".join(ref.value for ref in out)
        if kind == "put":
            *index, value = arguments
            if index:
                getattr(owner, name)[index[0]] = value
            else:
                setattr(owner, name, value)
            return ""
        value = getattr(owner, name)
        return value(*arguments) if kind == "call" or arguments else value

    def outcome(self, kind, words):
        if kind == "new":
            self.target = getattr(cvdeveloper, words)()
            return ""
        if kind == "connect":
            self.target = self.connect()
            return ""
        variable = None
        if kind in ("let", "set"):
            variable, kind, words = words.split(" ", 2)
        try:
            value = self.value(kind, words)
        except cvdeveloper.AutomationError as error:
            return f"error {error.number}"
        if variable:
            self.variables[variable] = cvdeveloper.Ref(value)
            return ""
        return as_text(value)


@pytest.mark.parametrize(("script", "least"), [("list_script", 50), ("behaviour_script", 120)])
def test_operations_give_what_stands_beside_them(script, least, app):
    run = Run(lambda: app)
    count = 0
    for line in (SCRIPTS / f"{script}.txt").read_text(encoding="utf-8").splitlines():
        if not line or line.startswith("#"):
            continue
        step, _, expected = line.partition(" =>")
        kind, _, words = step.partition(" ")
        assert run.outcome(kind, words) == unescaped(expected.removeprefix(" ")), line
        count += 1
    assert count > least


def test_the_list_script_names_every_operation_of_both_lists():
    text = (SCRIPTS / "list_script.txt").read_text(encoding="utf-8")
    for name in ("clsSalutationList", "clsPhoneList"):
        for member in dir(getattr(cvdeveloper, name)):
            if not member.startswith("_"):
                assert f" {member}" in text, f"{name}.{member}"
