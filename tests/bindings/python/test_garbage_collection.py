"""Nothing is kept alive that nobody needs, and nothing goes that somebody does."""

import gc
import weakref

import pytest
from doubles import Host, RecordSet

import cvdeveloper


class Derived(cvdeveloper.Application):
    """An Application with something of its own."""

    def __init__(self, owner=None):
        self.owner = owner

    def GetVersion(self):
        return f"eigene {super().GetVersion()}"

    @property
    def broken(self):
        raise AttributeError("im Inneren")


def attached_pair():
    app, host = cvdeveloper.Application(), Host()
    app.Corvanta_SetApplication(host)
    return app, host


def test_an_application_goes_when_its_last_name_does():
    app = cvdeveloper.Application()
    watched = weakref.ref(app)
    del app
    assert watched() is None


def test_a_host_goes_when_the_session_is_detached():
    app, host = attached_pair()
    watched = weakref.ref(host)
    del host
    assert watched() is not None
    app.Corvanta_Done()
    assert watched() is None


def test_a_host_goes_with_its_application():
    app, host = attached_pair()
    watched = weakref.ref(host)
    del app, host
    assert watched() is None


def test_a_circle_through_a_host_is_collected(collected):
    app, host = attached_pair()
    host.app = app
    watched = [weakref.ref(app), weakref.ref(host), weakref.ref(host.Util)]
    del app, host
    collected()
    assert [reference() for reference in watched] == [None, None, None]


@pytest.mark.parametrize("worker", ["oBase", "oTools"])
def test_a_circle_through_a_worker_is_collected(collected, worker):
    app, host = attached_pair()
    host.worker = getattr(app, worker)
    watched = weakref.ref(host)
    del app, host
    collected()
    assert watched() is None


def test_a_circle_through_a_bound_operation_is_collected(collected):
    app, host = attached_pair()
    host.create, host.numbers = app.AKT_Create, cvdeveloper.clsPhoneList().Phone1
    watched = [weakref.ref(app), weakref.ref(host)]
    del app, host
    collected()
    assert [reference() for reference in watched] == [None, None]


def test_a_circle_through_a_connector_is_collected(collected, folder):
    class Connector:
        Util = Blob = DbIni = None

        def Logon(self, path, user, password):
            pass

    connector = Connector()
    connector.app = app = cvdeveloper.Application()
    cvdeveloper.register_class("CVConnector.Application", lambda made=[connector]: made.pop())
    app.Corvanta_InitConnector(str(folder), "chef", "")
    watched = weakref.ref(connector)
    del app, connector
    cvdeveloper.reset_registry()
    collected()
    assert watched() is None


def test_what_somebody_still_needs_is_not_collected(collected, tmp_path):
    app, host = attached_pair()
    app.LogPath = str(tmp_path)
    host.app = app
    base = app.oBase
    watched = weakref.ref(host)
    del app, host
    collected()
    assert watched() is not None
    assert base.Sql_Find("AKT", "1=2").EOF
    del base
    collected()
    assert watched() is None


def test_collecting_while_a_host_is_being_called_takes_nothing_away(attached, host):
    def get(sql):
        gc.collect()
        return RecordSet({"A": sql})

    host.GetRecordset, host.app = get, attached
    assert attached.oBase.CV_GetRecordset("SELECT 1").row == {"A": "SELECT 1"}


def test_a_finaliser_may_use_the_library(collected):
    seen = []

    class Talking(Host):
        def __del__(self):
            seen.append(cvdeveloper.Application().GetVersion())

    app, host = cvdeveloper.Application(), Talking()
    host.app = app
    app.Corvanta_SetApplication(host)
    del app, host
    collected()
    assert seen == ["0.9.30"]


def test_a_finaliser_may_call_the_application_that_lets_its_host_go():
    seen = []

    class Talking(Host):
        def __del__(self):
            seen.append(app.Corvanta_InitType)

    app = cvdeveloper.Application()
    app.Corvanta_SetApplication(Talking())
    app.Corvanta_Done()
    assert seen == [0]


def test_weak_references_are_told_before_the_object_goes():
    found = []

    class Talking(Host):
        def __del__(self):
            found.append(watched())

    app = cvdeveloper.Application()
    app.Corvanta_SetApplication(Talking())
    watched = weakref.ref(app)
    del app
    assert found == [None]


def test_a_worker_asked_for_while_the_old_one_goes_is_a_new_one_that_lasts():
    app = cvdeveloper.Application()
    base, again = app.oBase, []
    watched = weakref.ref(base, lambda _: again.append(app.oBase))
    del base
    assert watched() is None
    assert again == [app.oBase]
    assert app.oBase is again[0]


def test_classes_can_be_derived_from_those_that_can_be_created():
    app = Derived(owner="ich")
    assert app.owner == "ich"
    assert app.GetVersion() == "eigene 0.9.30"
    assert isinstance(app, cvdeveloper.Application)
    app.note = 5
    assert (app.note, app.LogPath) == (5, "")


def test_instances_of_derived_classes_keep_the_errors_of_missing_members():
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        Derived().AKT_Creat  # noqa: B018
    assert caught.value.description.endswith(" Meinten Sie AKT_Create?")
    with pytest.raises(AttributeError, match="im Inneren") as caught:
        Derived().broken  # noqa: B018
    assert not isinstance(caught.value, cvdeveloper.AutomationError)


def test_instances_of_derived_classes_come_back_as_themselves(attached):
    phones = type("Phones", (cvdeveloper.clsPhoneList,), {})()
    target = RecordSet({"A": None})
    attached.oBase.Sql_CopyFields(RecordSet({"A": phones}), target)
    assert target.row["A"] is phones


def test_instances_of_derived_classes_are_taken_where_their_base_is(attached):
    phones = type("Phones", (cvdeveloper.clsPhoneList,), {})()
    phones.Add("0201 1", "", "Büro")
    address = RecordSet({"TELEFON": None})
    attached.AD_SetPhoneList(address, phones)
    assert address.row["TELEFON"] == "0201 1\t\tBüro"


def test_circles_through_instances_of_derived_classes_are_collected(collected):
    app, host = Derived(), Host()
    app.owner = app
    host.app = app
    app.Corvanta_SetApplication(host)
    watched = [weakref.ref(app), weakref.ref(host)]
    del app, host
    collected()
    assert [reference() for reference in watched] == [None, None]


def test_classes_that_cannot_be_created_cannot_be_derived_from():
    with pytest.raises(TypeError):
        type("Base", (cvdeveloper.clsBase,), {})
