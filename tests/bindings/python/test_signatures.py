"""help() and inspect.signature() tell how an operation is called."""

import datetime
import inspect
import pydoc
from typing import Any

import pytest

import cvdeveloper

EMPTY = inspect.Parameter.empty
DATE = datetime.datetime | float


def test_the_signature_shows_names_defaults_types_and_result():
    signature = inspect.signature(cvdeveloper.Application().AKT_Create)
    shown = [(p.name, p.default, p.annotation) for p in signature.parameters.values()]
    assert shown == [
        ("strAktArtDsn", "", str),
        ("strBetreff", "", str),
        ("strNotiz", "", str),
        ("blnErledigt", False, bool),
        ("dateDatum", 0, DATE),
        ("dateDatumBis", 0, DATE),
        ("dateDatumVorlage", 0, DATE),
        ("dateDatumAlarm", 0, DATE),
        ("dateLoeschdatum", 0, DATE),
        ("strStichwort1", "", str),
        ("strStichwort2", "", str),
        ("strEmskDsn", "", str),
        ("strAdDsn1", "", str),
        ("strAdDsn2", "", str),
        ("strObjDsn", "", str),
        ("strAnfDsn", "", str),
        ("strProjekteDsn", "", str),
        ("strAktenDsn", "", str),
        ("strVertraegeDsn", "", str),
        ("strDetailsDsn", "", str),
        ("strRootAktDsn", "", str),
    ]
    assert signature.return_annotation is str


def test_the_class_has_the_same_signature_with_the_object_in_front():
    bound = inspect.signature(cvdeveloper.Application().AKT_Create)
    unbound = inspect.signature(cvdeveloper.Application.AKT_Create)
    first, *others = unbound.parameters.values()
    assert (first.name, first.kind) == ("self", inspect.Parameter.POSITIONAL_ONLY)
    assert others == list(bound.parameters.values())


@pytest.mark.parametrize(
    ("owner", "operation", "text"),
    [
        ("Application", "GetVersion", "() -> str"),
        ("Application", "Corvanta_Done", "() -> None"),
        ("Application", "Corvanta_SetApplication", "(oCV: Any) -> None"),
        ("clsTools", "FormatDateTime",
         "(datDate: datetime.datetime | float, NamedFormat: int = 0) -> str"),
        ("clsTools", "StrList_DeleteFirst", "(varBuffer: Any, strDelim: str = '|') -> str"),
        ("clsTools", "IsArbeitstag",
         "(datDate: datetime.datetime | float, blnFeiertag: bool | cvdeveloper.Ref = True, "
         "blnSaturday: bool | cvdeveloper.Ref = True, blnSunday: bool | cvdeveloper.Ref = True)"
         " -> bool"),
        ("clsSalutationList", "SalutationShort", "(Index: int) -> str"),
        ("clsSalutationList", "Remove", "(Index: int) -> Any"),
    ],
)  # fmt: skip
def test_signatures_read_as_python(owner, operation, text):
    member = getattr(getattr(cvdeveloper, owner)(), operation)
    assert str(inspect.signature(member)).replace("typing.", "") == text


def test_enumerations_stand_in_signatures():
    signature = inspect.signature(cvdeveloper.Application.OBJ_Create)
    assert signature.parameters["enumEART"].annotation is cvdeveloper.ENUM_EART
    assert signature.parameters["enumEART"].default == 0


def test_every_operation_has_a_text_and_every_method_a_signature():
    for described in cvdeveloper._interface()["classes"]:
        kind = getattr(cvdeveloper, described["name"])
        for row in (row for topic in described["topics"] for row in topic["operations"]):
            member = getattr(kind, row["name"])
            assert len(member.__doc__) > 10
            if row["kind"] == "method":
                names = list(inspect.signature(member).parameters)
                assert names == ["self", *(p["name"] for p in row["parameters"])]


def test_help_on_an_operation_shows_21_arguments_with_defaults_and_a_useful_text():
    text = pydoc.plain(pydoc.render_doc(cvdeveloper.Application.AKT_Create))
    head, what, *rest = text.splitlines()[2:]
    assert head.startswith("AKT_Create(self, /, strAktArtDsn: str = '', strBetreff: str = '', ")
    assert head.count(" = ") == 21
    assert head.endswith("strRootAktDsn: str = '') -> str")
    assert what.startswith("    Saves a new activity and gives it the user's standard features.")
    assert "        strBetreff: subject, cut to 256 characters" in rest
    assert "    Result: The new activity's key." in rest
    assert any(line.startswith("    Errors: 601 ") for line in rest)
    assert '        app.AKT_Create(strBetreff="Anruf", strAdDsn1=ad)' in rest


def test_help_on_a_bound_operation_shows_the_same_text():
    text = pydoc.plain(pydoc.render_doc(cvdeveloper.Application().AKT_Create))
    assert "AKT_Create(strAktArtDsn: str = ''" in text
    assert "Saves a new activity" in text


def test_help_tells_which_arguments_come_back():
    text = cvdeveloper.clsTools.StrList_DeleteFirst.__doc__
    assert "varBuffer: " in text
    assert "(in/out: pass a Ref to get what is left there)" in text


def test_help_on_a_class_lists_its_operations():
    text = pydoc.plain(pydoc.render_doc(cvdeveloper.Application))
    for name in ("AKT_Create(", "GetVersion(", "FlagSqlLog", "oBase"):
        assert name in text


def test_help_on_the_module_works():
    text = pydoc.plain(pydoc.render_doc(cvdeveloper))
    for name in ("class Application", "class ENUM_EART", "connect(", "register_class("):
        assert name in text


@pytest.mark.parametrize(
    ("function", "text"),
    [
        ("connect", "(folder: str, user: str = 'chef', password: str = '')"),
        ("register_class", "(progid, factory)"),
        ("register_active_object", "(progid, obj)"),
        ("reset_registry", "()"),
        ("set_message_handler", "(handler)"),
    ],
)
def test_module_functions_have_signatures_too(function, text):
    signature = inspect.signature(getattr(cvdeveloper, function))
    assert str(signature.replace(return_annotation=EMPTY)) == text


def test_values_of_any_kind_are_annotated_so():
    parameter = inspect.signature(cvdeveloper.clsBase.Sql_SetField).parameters["varValue"]
    assert parameter.annotation is Any
