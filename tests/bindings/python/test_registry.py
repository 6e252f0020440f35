"""What the library creates and finds by class name, and where its messages go."""

import datetime
import subprocess
import sys

import pytest
from doubles import Host

import cvdeveloper

CONNECTOR = "CVConnector.Application"


@pytest.fixture
def bare(tmp_path):
    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    return app


class Standard:
    def GetTempPath(self):
        return ""

    def CutRight(self, text, end):
        pass


def test_the_factory_is_called_whenever_an_object_is_created(bare):
    made = []

    def factory():
        made.append(Standard())
        return made[-1]

    cvdeveloper.register_class("clqexStdC10.cUtil", factory)
    bare.DoLog("Anruf", "1")
    bare.DoLog("Anruf", "2")
    assert len(made) == 2


def test_a_class_is_a_factory(bare, folder):
    created = []

    class Connector:
        Util = Blob = DbIni = None

        def __init__(self):
            created.append(self)

        def Logon(self, path, user, password):
            pass

    cvdeveloper.register_class(CONNECTOR, Connector)
    bare.Corvanta_InitConnector(str(folder), "chef", "")
    assert [bare.Corvanta_Connector] == created


def test_names_of_classes_are_taken_without_regard_to_case(bare, folder, messages):
    cvdeveloper.register_class("cvCONNECTOR.aPPLICATION", None)
    bare.Corvanta_InitConnector(str(folder), "chef", "")
    assert messages == ["CVConnector.Application-Objekt konnte nicht erstellt werden."]


def test_a_running_object_is_found_without_regard_to_case_and_taken_out_by_none(
    bare, host, messages
):
    cvdeveloper.register_active_object("CORVANTA.application", host)
    bare.Corvanta_InitApplication()
    assert bare.Corvanta_Application is host
    cvdeveloper.register_active_object("Corvanta.Application", None)
    bare.Corvanta_Done()
    bare.Corvanta_InitApplication()
    assert messages == ["Corvanta.Application-Objekt konnte nicht erstellt werden."]


def test_the_last_registration_counts(bare):
    first, second = Host(), Host()
    cvdeveloper.register_active_object("Corvanta.Application", first)
    cvdeveloper.register_active_object("Corvanta.Application", second)
    bare.Corvanta_InitApplication()
    assert bare.Corvanta_Application is second


def test_an_exception_of_a_factory_reaches_the_caller_where_nothing_traps_it(attached):
    error = RuntimeError("kein Fenster")

    def fail():
        raise error

    cvdeveloper.register_class("clqexstdc10.cProgress", fail)
    with pytest.raises(RuntimeError) as caught:
        attached.oBase.CV_CreateProgress()
    assert caught.value is error


def test_what_a_factory_makes_comes_out_as_itself(attached):
    window = object()
    cvdeveloper.register_class("clqexstdc10.cProgress", lambda: window)
    assert attached.oBase.CV_CreateProgress() is window


def test_a_class_that_is_taken_out_is_error_429(attached):
    cvdeveloper.register_class("clqexstdc10.cProgress", None)
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.oBase.CV_CreateProgress()
    assert caught.value.number == 429
    assert "clqexstdc10.cProgress" in caught.value.description


def test_resetting_brings_back_what_importing_registered(bare, folder, host, messages):
    cvdeveloper.register_class(CONNECTOR, None)
    cvdeveloper.register_class("Eigene.Klasse", object)
    cvdeveloper.register_active_object("Corvanta.Application", host)
    cvdeveloper.reset_registry()
    bare.Corvanta_InitApplication()
    assert messages == ["Corvanta.Application-Objekt konnte nicht erstellt werden."]
    bare.Corvanta_InitConnector(str(folder), "chef", "")
    assert bare.Corvanta_InitType is cvdeveloper.INITTYPE_CONNECTOR


def test_the_stand_alone_hosts_classes_are_registered_by_importing(bare, folder, tmp_path):
    bare.Corvanta_InitConnector(str(folder), "chef", "")
    bare.DoLog("Anruf", "angenommen")
    assert (tmp_path / "cvDeveloper.log").exists()
    # The component is asked, and what it answers never reaches the caller.
    assert bare.oTools.IsFeiertag(datetime.date(2026, 12, 25)) == ""
    bare.Corvanta_Done()
    bare.Corvanta_SetApplication(Host())
    assert bare.oBase.CV_CreateProgress() is not None


@pytest.mark.parametrize("name", [None, 5, object()])
def test_a_class_name_is_a_text(name):
    for register in (cvdeveloper.register_class, cvdeveloper.register_active_object):
        with pytest.raises(cvdeveloper.AutomationError) as caught:
            register(name, None)
        assert caught.value.number == 13
        assert caught.value.description == "Typen unverträglich (Klassenname)"


@pytest.mark.parametrize("value", [5, "Host", True])
def test_a_factory_is_callable_and_a_running_object_an_object(value):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        cvdeveloper.register_class("Eigene.Klasse", value)
    assert caught.value.number == 13
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        cvdeveloper.register_active_object("Eigene.Klasse", value)
    assert caught.value.number == 13


def test_arguments_go_by_name(host):
    cvdeveloper.register_class(progid="Eigene.Klasse", factory=None)
    cvdeveloper.register_active_object(progid="Eigene.Klasse", obj=None)
    for wrong in ({"progid": "x"}, {"progid": "x", "factory": None, "more": 1}):
        with pytest.raises(TypeError):
            cvdeveloper.register_class(**wrong)


# Message boxes.


def test_the_message_handler_gets_each_text(bare, messages):
    bare.Corvanta_SetApplication(None)
    bare.Corvanta_InitApplication()
    assert messages == [
        "Corvanta.Application-Objekt ist nicht vorhanden.",
        "Corvanta.Application-Objekt konnte nicht erstellt werden.",
    ]


def test_an_exception_of_the_message_handler_reaches_the_caller(bare):
    error = RuntimeError("kein Bildschirm")

    def fail(text):
        raise error

    cvdeveloper.set_message_handler(fail)
    with pytest.raises(RuntimeError) as caught:
        bare.Corvanta_SetApplication(None)
    assert caught.value is error


def test_the_message_handler_is_callable():
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        cvdeveloper.set_message_handler("stderr")
    assert caught.value.number == 13


def test_without_a_handler_messages_go_to_standard_error():
    script = (
        "import sys; sys.path[:0] = %r; import cvdeveloper;"
        "app = cvdeveloper.Application(); app.Corvanta_SetApplication(None);"
        "cvdeveloper.set_message_handler(print); app.Corvanta_SetApplication(None);"
        "cvdeveloper.set_message_handler(None); app.Corvanta_SetApplication(None)" % sys.path
    )
    run = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, check=True)
    text = "Corvanta.Application-Objekt ist nicht vorhanden."
    assert run.stdout == text + "\n"
    assert run.stderr.count(text) == 2
