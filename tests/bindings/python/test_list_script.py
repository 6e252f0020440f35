"""The two lists give in Python what they give in C++: both run the same script."""

from pathlib import Path

import cvdeveloper

SCRIPT = Path(__file__).resolve().parents[2] / "tools" / "list_script.txt"


def unescaped(text):
    return text.replace("\\t", "\t").replace("\\r", "\r").replace("\\n", "\n")


def as_text(value):
    return "" if value in (None, cvdeveloper.Empty) else str(value)


def outcome(target, kind, words):
    name, *arguments = words.split("|")
    arguments = [unescaped(argument) for argument in arguments]
    try:
        if kind == "out":
            out = [cvdeveloper.Ref("") for _ in range(3)]
            getattr(target, name)(*arguments, *out)
            return "|".join(ref.value for ref in out)
        if kind == "call":
            return as_text(getattr(target, name)(*arguments))
        if kind == "get":
            value = getattr(target, name)
            return as_text(value(*arguments) if arguments else value)
        *index, value = arguments
        if index:
            getattr(target, name)[index[0]] = value
        else:
            setattr(target, name, value)
        return ""
    except cvdeveloper.AutomationError as error:
        return f"error {error.number}"


def steps():
    target = None
    for line in SCRIPT.read_text(encoding="utf-8").splitlines():
        if not line or line.startswith("#"):
            continue
        kind, words = line.split(" ", 1)
        if kind == "new":
            target = getattr(cvdeveloper, words)()
            continue
        words, expected = words.split(" =>", 1)
        yield target, kind, words, unescaped(expected.removeprefix(" ")), line


def test_the_lists_give_what_stands_beside_each_operation():
    count = 0
    for target, kind, words, expected, line in steps():
        assert outcome(target, kind, words) == expected, line
        count += 1
    assert count > 50


def test_the_script_names_every_operation_of_both_lists():
    text = SCRIPT.read_text(encoding="utf-8")
    for name in ("clsSalutationList", "clsPhoneList"):
        for member in dir(getattr(cvdeveloper, name)):
            if not member.startswith("_"):
                assert f" {member}" in text, f"{name}.{member}"


