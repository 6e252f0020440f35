"""Host folders, sessions and transactions in the forms that Python has for them."""

import inspect

import pytest

import cvdeveloper
from cvdeveloper import AutomationError


def activities(app):
    return [row["Subject"] for row in app.AKT_Find("1=1", "Kennung")]


# cvdeveloper.host.create


def test_a_new_folder_has_an_empty_database_and_one_active_administrator(tmp_path):
    assert cvdeveloper.host.create(str(tmp_path / "neu")) is None
    with cvdeveloper.connect(str(tmp_path / "neu")) as app:
        assert activities(app) == []
        assert app.Corvanta_IsAdmin() is True
        assert app.Corvanta_CurrentUserRS()["Login_Name"] == "chef"


def test_a_folder_that_is_there_is_taken(tmp_path):
    cvdeveloper.host.create(tmp_path)
    assert (tmp_path / "corvanta.db").exists()


def test_a_sample_database_has_something_in_it(app):
    assert len(activities(app)) > 50


def test_user_and_password_may_be_chosen(tmp_path):
    cvdeveloper.host.create(tmp_path / "neu", user="anna", password="Geheim")
    with cvdeveloper.connect(tmp_path / "neu", "anna", "geheim") as app:
        assert app.Corvanta_CurrentUserRS()["Login_Name"] == "anna"
        assert app.Corvanta_IsAdmin() is True


def test_a_folder_that_holds_a_database_is_left_alone(folder):
    before = (folder / "corvanta.db").read_bytes()
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.host.create(folder)
    assert caught.value.description == f"Der Ordner '{folder}' enthält schon eine Datenbank."
    assert (folder / "corvanta.db").read_bytes() == before


@pytest.mark.parametrize("argument", ["user", "password"])
def test_user_and_password_of_a_new_folder_are_texts(tmp_path, argument):
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.host.create(tmp_path / "neu", **{argument: None})
    assert caught.value.number == 13
    assert caught.value.description == f"Typen unverträglich (create, Argument {argument})"
    assert not (tmp_path / "neu").exists()


def test_the_signature_of_create_tells_its_defaults():
    signature = inspect.signature(cvdeveloper.host.create)
    assert str(signature) == (
        "(folder: str, sample: bool = False, user: str = 'chef', password: str = '') -> None"
    )


# cvdeveloper.connect


def test_connect_gives_an_attached_application(folder):
    app = cvdeveloper.connect(folder)
    assert type(app) is cvdeveloper.Application
    assert app.Corvanta_InitType is cvdeveloper.INITTYPE_CONNECTOR
    assert app.Corvanta_Folder() == str(folder)


def test_the_long_form_does_the_same(folder):
    app = cvdeveloper.Application()
    app.Corvanta_InitConnector(str(folder), "chef", "")
    assert app.Corvanta_InitType is cvdeveloper.INITTYPE_CONNECTOR


def test_leaving_the_block_detaches(folder):
    with cvdeveloper.connect(str(folder), user="chef", password="") as app:
        assert app.Corvanta_InitType == 2
    assert app.Corvanta_InitType == 0


def test_leaving_the_block_by_an_exception_detaches_and_lets_it_pass(folder):
    error = ValueError("x")
    with pytest.raises(ValueError) as caught, cvdeveloper.connect(folder) as app:
        raise error
    assert caught.value is error
    assert app.Corvanta_InitType == 0


@pytest.mark.parametrize(
    ("path", "user", "password", "number", "reason"),
    [
        ("{0}/fehlt", "chef", "", 429,
         "Corvanta_InitConnector: Pfad '{0}/fehlt' nicht gefunden."),
        ("", "chef", "", 429, "Corvanta_InitConnector: Pfadangabe fehlt."),
        ("{0}", "chef", "", -2147217865,
         "Der Ordner '{0}' ist kein Corvanta-Ordner: die Datei corvanta.ini fehlt."),
        ("{0}/buero", "chef", "falsch", -2147217843,
         "Die Anmeldung von 'chef' ist fehlgeschlagen: Benutzer oder Kennwort stimmt nicht."),
        ("{0}/buero", "niemand", "", -2147217843,
         "Die Anmeldung von 'niemand' ist fehlgeschlagen: Benutzer oder Kennwort stimmt nicht."),
    ],
)  # fmt: skip
def test_connect_raises_the_reason_why_not(
    folder, tmp_path, messages, path, user, password, number, reason
):
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.connect(path.format(tmp_path), user, password)
    assert caught.value.number == number
    assert caught.value.description == reason.format(tmp_path)
    assert messages == []


def test_connect_raises_the_connectors_own_exception(folder, messages):
    error = ValueError("falscher Tag")

    class Connector:
        def Logon(self, path, user, password):
            raise error

    cvdeveloper.register_class("CVConnector.Application", Connector)
    with pytest.raises(ValueError) as caught:
        cvdeveloper.connect(folder)
    assert caught.value is error
    assert messages == []


def test_connect_says_when_there_is_no_connector(folder, messages):
    cvdeveloper.register_class("CVConnector.Application", None)
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.connect(folder)
    assert (caught.value.number, caught.value.description) == (
        429, "CVConnector.Application-Objekt konnte nicht erstellt werden."
    )  # fmt: skip
    assert messages == []


def test_a_missing_folder_is_not_made(tmp_path):
    with pytest.raises(AutomationError):
        cvdeveloper.connect(tmp_path / "fehlt")
    assert list(tmp_path.iterdir()) == []


def test_messages_after_connecting_reach_the_handler_again(folder, messages):
    with cvdeveloper.connect(folder) as app:
        app.Corvanta_SetApplication(None)
    assert messages == ["Corvanta.Application-Objekt ist nicht vorhanden."]


# cvdeveloper.transaction


def test_a_transaction_commits_at_the_end(app, folder):
    with cvdeveloper.transaction(app):
        app.AKT_Create(strBetreff="eins")
        app.AKT_Create(strBetreff="zwei")
        with cvdeveloper.connect(folder) as other:
            assert "eins" not in activities(other)
    with cvdeveloper.connect(folder) as other:
        assert {"eins", "zwei"} <= set(activities(other))


@pytest.mark.parametrize("kind", [ValueError, KeyboardInterrupt, SystemExit])
def test_a_transaction_is_rolled_back_when_an_exception_leaves_it(app, kind):
    before = activities(app)
    error = kind("x")
    with pytest.raises(kind) as caught, cvdeveloper.transaction(app):
        app.AKT_Create(strBetreff="eins")
        assert "eins" in activities(app)
        raise error
    assert caught.value is error
    assert activities(app) == before


def test_what_a_statement_raises_rolls_back_too(app):
    before = activities(app)
    with pytest.raises(AutomationError), cvdeveloper.transaction(app):
        app.AKT_Create(strBetreff="eins")
        app.oBase.CV_GetRecordset("SELECT * FROM GibtEsNicht")
    assert activities(app) == before


def test_an_exception_that_is_handled_inside_does_not_roll_back(app):
    with cvdeveloper.transaction(app):
        app.AKT_Create(strBetreff="eins")
        with pytest.raises(AutomationError):
            app.oBase.CV_GetRecordset("SELECT * FROM GibtEsNicht")
    assert "eins" in activities(app)


def test_transactions_do_not_nest(app):
    with cvdeveloper.transaction(app):
        app.AKT_Create(strBetreff="eins")
        with pytest.raises(AutomationError) as caught, cvdeveloper.transaction(app):
            raise AssertionError("not reached")
        assert caught.value.description == "Es ist schon eine Transaktion begonnen."
    assert "eins" in activities(app)


def test_one_transaction_follows_another(app):
    for subject in ("eins", "zwei"):
        with cvdeveloper.transaction(app):
            app.AKT_Create(strBetreff=subject)
    assert {"eins", "zwei"} <= set(activities(app))


@pytest.mark.parametrize("kind", ["bare", "attached"])
def test_without_a_connector_there_is_no_transaction(request, kind):
    app = cvdeveloper.Application() if kind == "bare" else request.getfixturevalue(kind)
    with pytest.raises(AutomationError) as caught:
        cvdeveloper.transaction(app)
    assert caught.value.number == 601
    assert caught.value.description == "CVDeveloper wurde nicht initialisiert"
