"""The examples that no engine at hand runs name only what there is; the VBScript one is run.

Office and PowerShell are not to be had where these tests run.
"""

import re

import pytest

from wine_prefix import ROOT

EXAMPLES = ROOT / "examples" / "windows"
IDL = (ROOT / "bindings" / "com" / "cvdeveloper.idl").read_text(encoding="utf-8")
INTERFACES = {
    name: {
        member: set(re.findall(r"\] \S+ (\w+)[,)]", arguments + ")")) - {"result"}
        for member, arguments in re.findall(r"HRESULT (\w+)\((.*?)\);", body, re.S)
    }
    for name, body in re.findall(r"interface _(\w+) : IDispatch \{\n(.*?\n)    \};", IDL, re.S)
}
OBJECTS = {"app": "Application", "app.oBase": "clsBase", "app.oTools": "clsTools"}
CALL = re.compile(r"(?<![\w.])(app(?:\.o(?:Base|Tools))?)\.(\w+)")


def texts() -> dict[str, str]:
    files = {file.name: file.read_text(encoding="utf-8") for file in EXAMPLES.iterdir()}
    return {name: re.sub(r" _\n\s*", " ", text.replace("$app", "app"))
            for name, text in files.items()}


@pytest.mark.parametrize("name", ["Arbeitstag.bas", "arbeitstag.ps1", "arbeitstag.vbs"])
def test_examples_call_only_operations_that_there_are(name):
    calls = CALL.findall(texts()[name])
    assert len(calls) >= 8
    unknown = [f"{target}.{member}" for target, member in calls
               if member not in INTERFACES[OBJECTS[target]]]
    assert unknown == []


def test_the_vba_module_names_arguments_that_the_operation_has():
    call = re.search(r"app\.(AKT_Create)\((.*)\)", texts()["Arbeitstag.bas"])
    named = set(re.findall(r"(\w+):=", call[2]))
    assert named
    assert named - INTERFACES["Application"][call[1]] == set()


def test_the_vba_module_names_enumerations_that_there_are():
    for word in re.findall(r"\bINITTYPE_\w+", texts()["Arbeitstag.bas"]):
        assert re.search(rf"\b{word} = \d", IDL), word


def test_examples_can_be_read_in_any_code_page():
    for name, text in texts().items():
        assert text.isascii(), name
