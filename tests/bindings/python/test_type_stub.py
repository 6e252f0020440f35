"""The type stub is what the tables say, and what the running module does."""

import ast
import inspect
import runpy
from pathlib import Path

import pytest

import cvdeveloper

FOLDER = Path(__file__).resolve().parents[3] / "bindings" / "python"
STUB = (FOLDER / "cvdeveloper.pyi").read_text(encoding="utf-8")
TREE = ast.parse(STUB)
CLASSES = {
    node.name: node
    for node in TREE.body
    if isinstance(node, ast.ClassDef) and not node.name.startswith("_")
}
TABLES = [described["name"] for described in cvdeveloper._interface()["classes"]]
ENUMERATIONS = [described["name"] for described in cvdeveloper._interface()["enumerations"]]


def functions(node):
    """Functions of a class or module by name; of a property the reading, then the writing."""
    found = {}
    for item in node.body:
        if isinstance(item, ast.FunctionDef):
            found.setdefault(item.name, []).append(item)
    return found


def stub_signature(function):
    """Names of the arguments, and defaults by name."""
    names = [argument.arg for argument in function.args.posonlyargs + function.args.args]
    values = [ast.literal_eval(default) for default in function.args.defaults]
    return names, dict(zip(names[len(names) - len(values) :], values, strict=True))


def running_signature(member):
    parameters = inspect.signature(member).parameters.values()
    defaults = {p.name: p.default for p in parameters if p.default is not inspect.Parameter.empty}
    return [p.name for p in parameters], defaults


def is_property(function):
    return any(isinstance(d, ast.Name) and d.id == "property" for d in function.decorator_list)


def public_names():
    names = set()
    for node in TREE.body:
        if isinstance(node, ast.ClassDef | ast.FunctionDef):
            names.add(node.name)
        elif isinstance(node, ast.Assign):
            names.add(node.targets[0].id)
        elif isinstance(node, ast.AnnAssign):
            names.add(node.target.id)
        elif isinstance(node, ast.ImportFrom) and node.level == 1:
            names.update(alias.asname for alias in node.names)
    return {name for name in names if not name.startswith("_")}


def test_the_checked_in_stub_is_what_the_tables_give():
    script = runpy.run_path(str(FOLDER / "make_stub.py"))
    assert STUB == script["stub"]()


def test_the_package_has_the_checked_in_stub_beside_it():
    installed = Path(cvdeveloper.__file__).with_name("__init__.pyi")
    assert installed.read_text(encoding="utf-8") == STUB


def test_the_stub_has_every_public_name_and_no_other():
    assert public_names() == set(cvdeveloper.__all__)


@pytest.mark.parametrize("name", TABLES)
def test_every_operation_stands_in_the_stub(name):
    rows = {
        row["name"]
        for described in cvdeveloper._interface()["classes"]
        if described["name"] == name
        for topic in described["topics"]
        for row in topic["operations"]
    }
    assert {n for n in functions(CLASSES[name]) if not n.startswith("__")} == rows


@pytest.mark.parametrize("name", TABLES)
def test_methods_have_the_signatures_of_the_running_module(name):
    kind = getattr(cvdeveloper, name)
    for operation, (function, *_) in functions(CLASSES[name]).items():
        if not is_property(function) and not operation.startswith("__"):
            assert stub_signature(function) == running_signature(getattr(kind, operation))
            assert ast.get_docstring(function)


@pytest.mark.parametrize("name", TABLES)
def test_properties_are_attributes_of_the_running_module(name):
    for operation, (function, *writing) in functions(CLASSES[name]).items():
        member = getattr(getattr(cvdeveloper, name), operation)
        assert is_property(function) == (not callable(member)), operation
        if writing:
            assert [ast.unparse(d) for d in writing[0].decorator_list] == [f"{operation}.setter"]


def test_properties_are_writable_in_the_stub_where_they_are():
    written = {
        name: {n for n, found in functions(CLASSES[name]).items() if len(found) > 1}
        for name in TABLES
    }
    assert written == {
        "Application": {"FlagSqlLog", "LogPath"},
        "clsBase": set(),
        "clsTools": set(),
        "clsSalutationList": {"AsString"},
        "clsPhoneList": {"AsString"},
        "clsFileSystem": set(),
    }


def test_types_of_results_and_arguments_are_pythons():
    create = functions(CLASSES["Application"])["OBJ_Create"][0]
    assert [ast.unparse(a.annotation) for a in create.args.args[1:3]] == ["str", "ENUM_EART | int"]
    assert ast.unparse(create.returns) == "str"
    lists = functions(CLASSES["clsSalutationList"])
    assert ast.unparse(lists["SalutationShort"][0].returns) == "_Indexed[str]"
    first = functions(CLASSES["clsTools"])["StrList_DeleteFirst"][0]
    assert ast.unparse(first.args.args[1].annotation) == "_Value | Ref[Any]"


def test_names_in_annotations_are_known():
    known = {node.name for node in TREE.body if isinstance(node, ast.ClassDef)}
    known |= {"None", "int", "str", "bool", "float", "bytes", "object", "type", "property", "super"}
    known |= {"BaseException", "Exception", "AttributeError"}
    for node in ast.walk(TREE):
        if isinstance(node, ast.alias):
            known.add(node.asname or node.name)
        elif isinstance(node, ast.Name) and isinstance(node.ctx, ast.Store):
            known.add(node.id)
    used = {n.id for n in ast.walk(TREE) if isinstance(n, ast.Name) and isinstance(n.ctx, ast.Load)}
    setters = {name for kind in CLASSES.values() for name in functions(kind)}
    assert used - known - setters == set()


@pytest.mark.parametrize("name", ENUMERATIONS)
def test_enumerations_have_their_members_in_the_stub(name):
    members = {
        item.targets[0].id: ast.literal_eval(item.value)
        for item in CLASSES[name].body
        if isinstance(item, ast.Assign)
    }
    assert members == {m.name: m.value for m in getattr(cvdeveloper, name)}
    assert [ast.unparse(base) for base in CLASSES[name].bases] == ["enum.IntEnum"]


@pytest.mark.parametrize(
    "name", ["connect", "register_class", "register_active_object", "reset_registry",
             "set_message_handler"],
)  # fmt: skip
def test_module_functions_have_the_signatures_of_the_running_module(name):
    (function,) = functions(TREE)[name]
    assert stub_signature(function) == running_signature(getattr(cvdeveloper, name))


@pytest.mark.parametrize("name", ["AutomationError", "Row", "transaction"])
def test_the_other_classes_have_their_methods(name):
    kind = getattr(cvdeveloper, name)
    for method, (function, *_) in functions(CLASSES[name]).items():
        assert stub_signature(function) == running_signature(getattr(kind, method))
