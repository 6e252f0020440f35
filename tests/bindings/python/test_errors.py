"""Every failure is an AutomationError, and a misspelt member names its nearest relatives."""

import copy
import pickle

import pytest

import cvdeveloper
from cvdeveloper import AutomationError


def test_an_error_has_number_source_and_description():
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.Application().AKT_Create()
    assert caught.value.number == 601
    assert caught.value.source == ""
    assert caught.value.description == "CVDeveloper wurde nicht initialisiert"
    assert str(caught.value) == "Fehler 601: CVDeveloper wurde nicht initialisiert"


def test_numbers_of_host_errors_are_signed_and_have_a_source(app):
    with pytest.raises(AutomationError) as caught:
        app.oBase.CV_GetRecordset("SELECT * FROM GibtEsNicht")
    assert caught.value.number == -2147217900
    assert caught.value.source == "CVConnector"
    assert "GibtEsNicht" in caught.value.description
    assert str(caught.value) == (
        f"Fehler -2147217900 (CVConnector): {caught.value.description}"
    )


def test_an_error_quotes_the_first_200_characters_of_the_statement(app):
    statement = "SELECT * FROM GibtEsNicht WHERE A='" + "x" * 300 + "'"
    with pytest.raises(AutomationError) as caught:
        app.oBase.CV_GetRecordset(statement)
    assert caught.value.description.endswith(" Anweisung: " + statement[:200])


def test_an_error_without_texts_is_readable_all_the_same():
    error = AutomationError(5)
    assert (error.number, error.source, error.description) == (5, "", "")
    assert str(error) == "Fehler 5"
    assert repr(error) == "AutomationError(5, '', '')"


def test_errors_can_be_copied_and_sent_elsewhere():
    error = AutomationError(601, "Quelle", "Text")
    for twin in (copy.copy(error), pickle.loads(pickle.dumps(error))):
        assert (twin.number, twin.source, twin.description) == (601, "Quelle", "Text")


def test_errors_are_caught_as_exceptions():
    assert issubclass(AutomationError, Exception)
    assert AutomationError.__module__ == "cvdeveloper"


@pytest.mark.parametrize(
    ("name", "text"),
    [
        ("AKT_Creat", " (Application.AKT_Creat). Meinten Sie AKT_Create?"),
        ("akt_create", " (Application.akt_create). Meinten Sie AKT_Create?"),
        ("LogPat", " (Application.LogPat). Meinten Sie LogPath?"),
        ("oTool", " (Application.oTool). Meinten Sie oTools?"),
        ("Zzzzzzzz", " (Application.Zzzzzzzz)"),
    ],
)
def test_a_misspelt_member_is_error_438_and_names_its_nearest_relatives(name, text):
    with pytest.raises(AutomationError) as caught:
        getattr(cvdeveloper.Application(), name)
    assert caught.value.number == 438
    assert caught.value.description == (
        "Objekt unterstützt diese Eigenschaft oder Methode nicht" + text
    )


def test_writing_a_misspelt_attribute_is_error_438_too():
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.Application().FlagSqlLogs = True
    assert caught.value.number == 438
    assert caught.value.description.endswith(" Meinten Sie FlagSqlLog?")


def test_members_of_every_class_have_relatives():
    app = cvdeveloper.Application()
    for owner, name, relative in [
        (app.oBase, "Sql_Fnd", "Sql_Find"),
        (app.oTools, "vbLik", "vbLike"),
        (app.oFileSystem, "FileExist", "FileExists"),
        (cvdeveloper.clsPhoneList(), "Phone", "Phone1"),
        (cvdeveloper.clsSalutationList(), "SalutationLetters", "SalutationLetter"),
    ]:
        with pytest.raises(AutomationError) as caught:
            getattr(owner, name)
        assert f"Meinten Sie {relative}" in caught.value.description


def test_record_sets_of_the_stand_alone_host_name_relatives_too(app):
    with pytest.raises(AutomationError) as caught:
        app.AKT_Find("1=2").MoveNxt()
    assert caught.value.number == 438
    assert caught.value.description == (
        "Objekt unterstützt diese Eigenschaft oder Methode nicht (Recordset.MoveNxt)."
        " Meinten Sie MoveNext?"
    )


def test_hasattr_and_getattr_with_a_default_work():
    app = cvdeveloper.Application()
    assert hasattr(app, "AKT_Create") is True
    assert hasattr(app, "AKT_Creat") is False
    assert getattr(app, "AKT_Creat", None) is None


def test_a_missing_member_is_an_attribute_error_for_python():
    with pytest.raises(AttributeError) as caught:
        cvdeveloper.Application().AKT_Creat()
    assert type(caught.value) is cvdeveloper.NoSuchMember


def test_pythons_own_protocols_keep_their_errors():
    with pytest.raises(AttributeError) as caught:
        cvdeveloper.Application().__length_hint__  # noqa: B018
    assert not isinstance(caught.value, AutomationError)


def test_on_the_class_a_misspelt_member_is_pythons_own_error():
    with pytest.raises(AttributeError):
        cvdeveloper.Application.AKT_Creat  # noqa: B018
