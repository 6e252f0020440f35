"""Attaching to a host and detaching from it: what is kept, what is shown, what is raised."""

import pytest
from doubles import Host, RecordSet

import cvdeveloper

NO_APPLICATION = "Corvanta.Application-Objekt konnte nicht erstellt werden."
NOTHING_GIVEN = "Corvanta.Application-Objekt ist nicht vorhanden."
NO_HOST = "Corvanta_SetApplication wurde mit einem ungültigen Corvanta-Objekt aufgerufen."
NOT_LOGGED_IN = "Sie müssen in Corvanta angemeldet sein."
NO_CONNECTOR = "CVConnector.Application-Objekt konnte nicht erstellt werden."
NO_PATH = "Corvanta_InitConnector: Pfadangabe fehlt."
LOG_ON_FAILED = "Anmeldung in CVConnector ist fehlgeschlagen."


@pytest.fixture
def bare():
    return cvdeveloper.Application()


class Connector:
    """A connector that keeps what it is asked to log on."""

    def __init__(self, refusal=None):
        self.refusal, self.given = refusal, None
        self.Util, self.Blob, self.DbIni = object(), object(), None

    def Logon(self, path, user, password):
        self.given = (path, user, password)
        if self.refusal is not None:
            raise self.refusal


@pytest.fixture
def connector():
    made = Connector()
    cvdeveloper.register_class("CVConnector.Application", lambda: made)
    return made


def state(app):
    return (app.Corvanta_InitType, app.Corvanta_Application, app.Corvanta_Connector, app.oUtil,
            app.oBlob, app.oDbIni, app.Corvanta_Folder())  # fmt: skip


DETACHED = (0, None, None, None, None, None, "")


def test_a_new_application_is_detached(bare):
    assert state(bare) == DETACHED


def test_attaching_to_a_running_application_keeps_its_objects(bare, messages):
    host = Host()
    host.Blob, host.DbIni = object(), object()
    bare.Corvanta_SetApplication(host)
    assert messages == []
    assert state(bare) == (1, host, None, host.Util, host.Blob, host.DbIni, "C:\\Corvanta")


def test_the_running_application_is_found_by_its_class_name(bare, messages, host):
    cvdeveloper.register_active_object("Corvanta.Application", host)
    bare.Corvanta_InitApplication()
    assert (messages, bare.Corvanta_Application) == ([], host)
    assert bare.Corvanta_InitType is cvdeveloper.INITTYPE_APPLICATION


def test_where_none_is_running_a_message_says_so_and_the_session_stays(attached, messages, host):
    attached.Corvanta_InitApplication()
    assert messages == [NO_APPLICATION]
    assert attached.Corvanta_Application is host


@pytest.mark.parametrize(
    ("given", "text"),
    [
        (None, NOTHING_GIVEN),
        (5, NOTHING_GIVEN),
        ("Corvanta.Application", NOTHING_GIVEN),
        (cvdeveloper.Empty, NOTHING_GIVEN),
        (object(), NO_HOST),
        (cvdeveloper.clsTools(), NO_HOST),
    ],
    ids=repr,
)
def test_what_is_no_host_is_refused_and_the_session_stays(attached, host, messages, given, text):
    before = state(attached)
    attached.Corvanta_SetApplication(given)
    assert messages == [text]
    assert state(attached) == before


def test_a_host_that_fails_to_say_whether_it_is_logged_in_is_refused(bare, messages):
    class Broken:
        @property
        def IsLoggedIn(self):
            raise RuntimeError("kaputt")

    bare.Corvanta_SetApplication(Broken())
    assert (messages, bare.Corvanta_InitType) == ([NO_HOST], 0)


def test_a_host_that_nobody_is_logged_in_to_is_refused_and_the_session_stays(
    attached, host, messages
):
    other = Host()
    other.IsLoggedIn = False
    attached.Corvanta_SetApplication(other)
    assert messages == [NOT_LOGGED_IN]
    assert attached.Corvanta_Application is host


def test_a_host_without_util_or_folder_is_an_error_for_the_caller(bare, messages):
    class NoUtil:
        IsLoggedIn, Folder = True, ""

    class NoFolder:
        IsLoggedIn, Util = True, None

    for host, member in [(NoUtil(), "Util"), (NoFolder(), "Folder")]:
        with pytest.raises(cvdeveloper.AutomationError) as caught:
            bare.Corvanta_SetApplication(host)
        assert caught.value.number == 438
        assert f".{member})" in caught.value.description
        assert bare.Corvanta_InitType == 0
    assert messages == []


def test_blob_and_ini_may_fail(bare):
    class Failing(Host):
        @property
        def Blob(self):
            raise RuntimeError("kaputt")

    bare.Corvanta_SetApplication(Failing())
    assert (bare.Corvanta_InitType, bare.oBlob, bare.oDbIni) == (1, None, None)


def test_another_application_replaces_the_first(attached):
    other = Host()
    other.Folder = "D:\\Anders"
    attached.Corvanta_SetApplication(other)
    assert attached.Corvanta_Application is other
    assert attached.oUtil is other.Util
    assert attached.Corvanta_Folder() == "D:\\Anders"


# The connector.


def test_logging_on_passes_path_user_and_the_password_in_upper_case(bare, connector, tmp_path):
    bare.Corvanta_InitConnector(str(tmp_path), "Anna", "geheim-ß")
    assert connector.given == (str(tmp_path), "Anna", "GEHEIM-ß")
    assert state(bare) == (
        2, None, connector, connector.Util, connector.Blob, None, str(tmp_path)
    )  # fmt: skip
    assert bare.Corvanta_InitType is cvdeveloper.INITTYPE_CONNECTOR


def test_one_trailing_backslash_of_the_path_is_dropped(bare, connector, tmp_path):
    bare.Corvanta_InitConnector(f"{tmp_path}\\", "Anna", "")
    assert bare.Corvanta_Folder() == str(tmp_path)
    assert connector.given[0] == str(tmp_path)


@pytest.mark.parametrize(
    ("factory", "path", "text"),
    [
        (None, "{folder}", NO_CONNECTOR),
        (lambda: None, "{folder}", NO_CONNECTOR),
        (Connector, "", NO_PATH),
        (Connector, "{folder}/fehlt", "Corvanta_InitConnector: Pfad '{folder}/fehlt' nicht gefunden."),
        (Connector, "{folder}/fehlt\\", "Corvanta_InitConnector: Pfad '{folder}/fehlt' nicht gefunden."),
        (lambda: Connector(RuntimeError("nein")), "{folder}", LOG_ON_FAILED),
    ],
)  # fmt: skip
def test_what_keeps_the_connector_from_logging_on_is_shown(
    attached, messages, tmp_path, factory, path, text
):
    cvdeveloper.register_class("CVConnector.Application", factory)
    attached.Corvanta_InitConnector(path.format(folder=tmp_path), "Anna", "geheim")
    assert messages == [text.format(folder=tmp_path)]
    assert attached.Corvanta_InitType is cvdeveloper.INITTYPE_NONE
    assert attached.Corvanta_Application is None


def test_the_connector_stays_after_a_failed_log_on(bare, connector, messages, tmp_path):
    connector.refusal = RuntimeError("nein")
    bare.Corvanta_InitConnector(str(tmp_path), "Anna", "")
    assert (bare.Corvanta_InitType, bare.Corvanta_Connector) == (0, connector)
    assert (bare.oUtil, bare.Corvanta_Folder()) == (None, "")


def test_a_failed_log_on_is_logged_instead_while_statements_are_logged(
    bare, connector, messages, tmp_path, log_lines
):
    connector.refusal = cvdeveloper.AutomationError(1, "Host", "Kennwort falsch")
    bare.LogPath, bare.FlagSqlLog = str(tmp_path), True
    bare.Corvanta_InitConnector(str(tmp_path), "Anna", "geheim")
    assert messages == []
    assert log_lines() == [
        f"Corvanta_InitConnector : CorvantaPath: '{tmp_path}'; User: 'Anna'; "
        "Err: 'Kennwort falsch'"
    ]
    assert bare.Corvanta_InitType == 0


def test_services_that_the_connector_fails_to_give_are_an_error(bare, connector, tmp_path):
    del connector.Util
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        bare.Corvanta_InitConnector(str(tmp_path), "Anna", "")
    assert caught.value.number == 438


# Detaching.


@pytest.mark.parametrize("kind", ["attached", "app"])
def test_detaching_lets_everything_of_the_host_go(request, kind):
    app = request.getfixturevalue(kind)
    app.Corvanta_Done()
    assert state(app) == DETACHED
    app.Corvanta_Done()
    assert state(app) == DETACHED


def test_detaching_keeps_the_workers_and_the_log_settings(attached, tmp_path):
    base, tools, files = attached.oBase, attached.oTools, attached.oFileSystem
    attached.FlagSqlLog = True
    attached.Corvanta_Done()
    assert (attached.oBase, attached.oTools, attached.oFileSystem) == (base, tools, files)
    assert (attached.FlagSqlLog, attached.LogPath) == (True, str(tmp_path))


def test_attaching_anew_forgets_the_database_password(attached):
    calls = []

    class Counting(Host):
        def GetRecordset(self, *given):
            calls.append(given)
            return RecordSet({"A": 1})

    attached.oBase.SetDBPassword("geheim")
    attached.Corvanta_SetApplication(Counting())
    attached.oBase.CV_GetRecordset("SELECT 1")
    assert calls == [("SELECT 1",)]


@pytest.mark.parametrize(
    "call",
    [
        lambda app: app.AKT_Create(),
        lambda app: app.oBase.CV_GetRecordset("SELECT 1"),
        lambda app: app.oBase.CV_UpdateRecordset(None),
        lambda app: app.oBase.CV_CurrentUserRS(),
        lambda app: app.oBase.Pane_Show("F_AD"),
        lambda app: app.oBase.CV_CreateProgress(),
        lambda app: app.Corvanta_STDRS(),
    ],
)
def test_without_a_session_everything_that_needs_the_host_is_error_601(attached, call):
    attached.Corvanta_Done()
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        call(attached)
    assert (caught.value.number, caught.value.source) == (601, "")
    assert caught.value.description == "CVDeveloper wurde nicht initialisiert"


def test_without_a_session_the_user_is_no_administrator_and_there_is_no_version(bare, tmp_path):
    bare.LogPath = str(tmp_path)
    assert bare.Corvanta_IsAdmin() is False
    assert bare.Corvanta_DbVersion() == 0.0


@pytest.mark.parametrize(
    ("user", "admin"),
    [
        ({"AKTIV": 1, "Chef": 1}, True),
        ({"AKTIV": 1, "Chef": -1}, False),
        ({"AKTIV": 0, "Chef": 1}, False),
        ({"AKTIV": None, "Chef": 1}, False),
        ({}, False),
    ],
)
def test_an_administrator_is_active_and_chief(attached, host, user, admin):
    host.user = user
    assert attached.Corvanta_IsAdmin() is admin
