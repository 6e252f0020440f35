"""The lists give a script under Windows what they give C++ and Python: all run the same steps.

tests/tools/list_script_test.cpp and tests/bindings/python/test_list_script.py hold the other two to
the results that stand in the file; this compares line by line what VBScript gives.
"""

from wine_prefix import ROOT

SCRIPT = ROOT / "tests" / "tools" / "list_script.txt"

DRIVER = """
Dim target, out(2)
Sub Say(kind)
    If Err.Number <> 0 Then
        WScript.Echo "error " & Err.Number
    ElseIf kind = "out" Then
        WScript.Echo out(0) & "|" & out(1) & "|" & out(2)
    End If
    Err.Clear
End Sub
Sub SayValue(value)
    Dim text: text = value & ""
    text = Replace(Replace(Replace(text, vbTab, "\\t"), vbCr, "\\r"), vbLf, "\\n")
    WScript.Echo text
End Sub
"""


def literal(text: str) -> str:
    quoted = '"' + text.replace('"', '""') + '"'
    for escape, name in (("\\t", "vbTab"), ("\\r", "vbCr"), ("\\n", "vbLf")):
        quoted = quoted.replace(escape, f'" & {name} & "')
    return quoted


def statement(kind: str, words: str) -> list[str]:
    name, *arguments = words.split("|")
    given = [literal(argument) for argument in arguments]
    if kind == "put":
        index = f"({', '.join(given[:-1])})" if len(given) > 1 else ""
        return [f"target.{name}{index} = {given[-1]}", 'If Err.Number = 0 Then WScript.Echo ""',
                'Say "put"']
    if kind == "out":
        return [f"target.{name} {', '.join([*given, 'out(0)', 'out(1)', 'out(2)'])}", 'Say "out"']
    call = f"target.{name}" + (f"({', '.join(given)})" if given else "")
    return ["value = Empty", f"value = {call}",
            "If Err.Number = 0 Then SayValue value", f'Say "{kind}"']


def steps():
    for line in SCRIPT.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            kind, words = line.split(" ", 1)
            yield kind, words


def test_the_lists_give_what_stands_beside_each_operation(run_script):
    lines, expected = [DRIVER, "Dim value", "On Error Resume Next"], []
    for kind, words in steps():
        if kind == "new":
            lines.append(f'Set target = CreateObject("CVDeveloper.{words}")')
            continue
        words, result = words.split(" =>", 1)
        lines += statement(kind, words)
        expected.append(f"{words} => {result.removeprefix(' ')}")
    assert len(expected) > 50
    found = run_script("\n".join(lines)).lines
    shown = [f"{line.split(' => ')[0]} => {result}" for line, result in zip(expected, found)]
    assert shown == expected
    assert len(found) == len(expected)
