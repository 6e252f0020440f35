"""The type library inside the DLL, loaded and compared with the interface's text."""

import re

import pytest

from wine_prefix import ROOT, windows_path

IDL = (ROOT / "bindings" / "com" / "cvdeveloper.idl").read_text(encoding="utf-8")
OPERATION = re.compile(
    r"// slot (\d+)\n\s+\[id\((\d+)\)(, prop\w+)?, helpstring\((\"(?:\\.|[^\"\\])*\")\)\]\n"
    r"\s+HRESULT (\w+)\((.*?)\);\n", re.S)
PARAMETER = re.compile(r"\[([^\]]*(?:\"[^\"]*\"[^\]]*)?)\] (\S+) (\w+)")
KINDS = {"": "method", ", propget": "get", ", propput": "put"}


def unquoted(text: str) -> str:
    return re.sub(r"\\(.)", r"\1", text[1:-1])


def parameter_text(attributes: str, kind: str, name: str) -> str:
    text = f" | {name} {kind}"
    text += " retval" if "retval" in attributes else ""
    text += " inout" if attributes.startswith("in, out") else ""
    text += " optional" if "optional" in attributes else ""
    default = re.search(r"defaultvalue\((.*)\)$", attributes)
    return text + (f" = {default[1]}" if default else "")


def expected_operations() -> list[str]:
    lines = []
    for interface in re.finditer(r"interface (_\w+) : IDispatch \{\n(.*?\n)    \};", IDL, re.S):
        name, body = interface.groups()
        for slot, number, kind, help_text, operation, arguments in OPERATION.findall(body):
            parameters = "".join(parameter_text(*p) for p in PARAMETER.findall(arguments))
            lines.append(f"{name}.{operation} {number} {KINDS[kind]} {slot}{parameters}"
                         f" || {unquoted(help_text)}")
    return lines


@pytest.fixture(scope="module")
def dump(prefix):
    result = prefix.program("type_library_dump", windows_path(prefix.dll("CVDeveloper.dll")))
    assert result.code == 0, result.errors
    return result.lines


def without_names_of_put(line: str) -> str:
    """The system gives a property's writing the help and argument names of its reading."""
    return re.sub(r"( put \d+).*", r"\1", line)


def with_one_spelling(line: str) -> str:
    """A type library keeps one spelling of a name, whatever the case: rsOBJ is rsObj there."""
    arguments, bar, help_text = line.partition(" || ")
    return re.sub(r"\| (\w+)", lambda found: found[0].lower(), arguments) + bar + help_text


def compared(line: str) -> str:
    return with_one_spelling(without_names_of_put(line))


def test_the_library_has_its_name_and_help(dump):
    assert re.fullmatch(r"library CVDeveloper \{[-0-9A-F]{36}\} 1\.0 Corvanta Entwicklungstools",
                        dump[0])


def test_every_operation_has_its_id_slot_arguments_defaults_and_help(dump):
    expected = expected_operations()
    assert len(expected) == IDL.count("// slot ")
    found = [line for line in dump if re.match(r"_\w+\.", line)]
    assert sorted(map(compared, found)) == sorted(map(compared, expected))


def test_writings_of_properties_have_their_types(dump):
    types = {line.split(" ")[0]: re.findall(r"\| \w+ (\S+)", line.split(" || ")[0])
             for line in dump if re.search(r" put \d+", line)}
    assert types["_Application.LogPath"] == ["BSTR"]
    assert types["_Application.FlagSqlLog"] == ["VARIANT_BOOL"]
    assert types["_clsPhoneList.Phone1"] == ["short", "BSTR"]


def test_every_enumeration_has_its_members(dump):
    expected = []
    for body, name in re.findall(r"enum \w+ \{\n(.*?)\n    \} (\w+);", IDL, re.S):
        expected += [f"enum {name}.{member} {value}"
                     for member, value in re.findall(r"(\w+) = (-?\d+)", body)]
    assert expected
    assert [line for line in dump if line.startswith("enum ")] == expected


def test_every_class_has_its_id_and_interface(dump):
    expected = [f"class {name} {{{number.upper()}}} _{name}" for number, name in re.findall(
        r"\[uuid\(([-0-9a-f]{36})\),\n[^\n]*\]\n    coclass (\w+)", IDL)]
    assert len(expected) == 11
    assert [line for line in dump if line.startswith("class ")] == expected
