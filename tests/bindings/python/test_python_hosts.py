"""Any Python object serves as a host; its members are reached by name when they are needed."""

import gc
import types
import weakref

import pytest
from doubles import Host, RecordSet

import cvdeveloper
from cvdeveloper import AutomationError, Ref


def attach(host, tmp_path):
    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    app.Corvanta_SetApplication(host)
    return app


def test_members_that_are_callable_are_called_and_others_are_read(tmp_path):
    for logged_in, folder in [(True, "F"), (lambda: True, lambda: "F")]:
        host = types.SimpleNamespace(IsLoggedIn=logged_in, Util=None, Folder=folder)
        app = attach(host, tmp_path)
        assert (app.Corvanta_InitType, app.Corvanta_Folder()) == (1, "F")


def test_properties_methods_and_instance_attributes_are_all_members(tmp_path):
    class Mixed:
        Util = None

        def __init__(self):
            self.Folder = "aus der Instanz"

        @property
        def IsLoggedIn(self):
            return True

        @staticmethod
        def GetRecordset(sql):
            return RecordSet({"A": sql})

        @classmethod
        def UpdateRecordset(cls, rs):
            rs.value.rows.clear()

    app = attach(Mixed(), tmp_path)
    assert app.Corvanta_Folder() == "aus der Instanz"
    assert app.oBase.CV_GetRecordset("SELECT 1").row == {"A": "SELECT 1"}
    written = RecordSet({"A": 1})
    app.AKT_Update(written)
    assert written.rows == []


def test_members_made_up_on_demand_are_members(tmp_path):
    class Dynamic:
        def __getattr__(self, name):
            return {"IsLoggedIn": True, "Folder": "dynamisch", "Util": None}[name]

    assert attach(Dynamic(), tmp_path).Corvanta_Folder() == "dynamisch"


def test_the_exact_spelling_comes_first(tmp_path):
    host = types.SimpleNamespace(FOLDER="GROSS", folder="klein", Folder="genau", IsLoggedIn=True)
    host.Util = None
    assert attach(host, tmp_path).Corvanta_Folder() == "genau"


def test_then_any_spelling_fits(tmp_path):
    class Lower:
        isloggedin = True
        UTIL = None

        def folder(self):
            return "klein"

        def getrecordset(self, sql):
            return RecordSet({"A": 1})

    app = attach(Lower(), tmp_path)
    assert app.Corvanta_Folder() == "klein"
    assert not app.oBase.CV_GetRecordset("SELECT 1").EOF


def test_members_are_reached_when_they_are_needed_and_no_sooner(tmp_path, host):
    class Watched:
        def __init__(self):
            self.asked = []

        def __getattribute__(self, name):
            if not name.startswith("_") and name != "asked":
                self.asked.append(name)
            return object.__getattribute__(self, name)

        IsLoggedIn, Util, Blob, DbIni, Folder = True, host.Util, None, None, ""

    watched = Watched()
    app = attach(watched, tmp_path)
    assert watched.asked == ["IsLoggedIn", "Util", "Blob", "DbIni", "Folder"]
    with pytest.raises(AutomationError):
        app.AKT_New()
    assert watched.asked[5:] == ["GetRecordset"]


def test_a_member_is_looked_up_anew_each_time(attached, host):
    attached.oBase.CV_GetRecordset("SELECT 1")
    host.GetRecordset = lambda sql: RecordSet({"A": 2})
    assert attached.oBase.CV_GetRecordset("SELECT 1").row == {"A": 2}


def test_a_missing_member_is_error_438_that_names_it(tmp_path):
    host = types.SimpleNamespace(IsLoggedIn=True, Util=None, Folder="")
    app = attach(host, tmp_path)
    with pytest.raises(AutomationError) as caught:
        app.oBase.CV_GetRecordset("SELECT 1")
    assert caught.value.number == 438
    assert caught.value.description == (
        "Objekt unterstützt diese Eigenschaft oder Methode nicht (types.SimpleNamespace.GetRecordset)"
    )


def test_a_missing_member_names_its_nearest_relatives(attached, host):
    class Misspelt:
        IsLoggedIn, Util, Folder = True, None, ""

        def GetRecordSets(self, sql):
            raise AssertionError

    attached.Corvanta_SetApplication(Misspelt())
    with pytest.raises(AutomationError) as caught:
        attached.oBase.CV_GetRecordset("SELECT 1")
    assert caught.value.description.endswith(" Meinten Sie GetRecordSets?")


def test_writing_a_member_that_there_is_not_is_error_438(attached):
    class Named:
        Name = "A"

    class Rows:
        EOF = False
        field = Named()

        @property
        def Fields(self):
            return types.SimpleNamespace(Item=lambda name: self.field, Count=1)

    with pytest.raises(AutomationError) as caught:
        attached.oBase.Sql_CopyFields(RecordSet({"A": "neu"}), Rows())
    assert caught.value.number == 438
    assert "(Named.Value)" in caught.value.description
    assert not hasattr(Rows.field, "Value")


def test_objects_that_take_any_name_may_be_written_anything(attached):
    class Open:
        def __setattr__(self, name, value):
            object.__setattr__(self, name, value)

    field = Open()
    rows = types.SimpleNamespace(EOF=False)
    rows.Fields = types.SimpleNamespace(Item=lambda name: field, Count=1)
    attached.oBase.Sql_CopyFields(RecordSet({"A": "neu"}), rows)
    assert field.Value == "neu"


def test_a_property_is_written_in_whatever_case_it_is_spelt(attached):
    class Field:
        name = "A"
        value = 1

    class Rows:
        eof = False
        written = Field()

        @property
        def fields(self):
            return types.SimpleNamespace(item=lambda name: self.written, count=1)

    rows = Rows()
    attached.oBase.Sql_CopyFields(RecordSet({"A": "neu"}), rows)
    assert rows.written.value == "neu"


def test_a_readable_member_with_arguments_is_read_and_indexed(attached, host):
    shown = []

    class Pane:
        def Show(self):
            shown.append("gezeigt")

    host.Panes = {"F_AD": Pane()}
    attached.oBase.Pane_Show("F_AD")
    assert shown == ["gezeigt"]


def test_a_callable_member_is_called_with_the_arguments(attached, host):
    forms = []
    host.Panes = lambda form: forms.append(form)
    attached.oBase.Pane_Show("F_AD")
    assert forms == ["F_AD"]


def test_a_member_that_takes_no_arguments_is_error_450(attached, host):
    host.Panes = 5
    with pytest.raises(AutomationError) as caught:
        attached.oBase.Pane_Show("F_AD")
    assert caught.value.number == 450
    assert caught.value.description == "Falsche Anzahl an Argumenten (Host.Panes)"


def test_the_password_is_a_second_argument_only_where_there_is_one(attached, host):
    calls = []
    host.GetRecordset = lambda *given: calls.append(given) or RecordSet({"A": 1})
    host.UpdateRecordset = lambda *given: calls.append(given[1:])
    base = attached.oBase
    base.CV_GetRecordset("SELECT 1")
    base.SetDBPassword("")
    base.CV_GetRecordset("SELECT 2")
    base.CV_UpdateRecordset(RecordSet())
    base.ResetDBPassword()
    base.CV_GetRecordset("SELECT 3")
    assert calls == [("SELECT 1",), ("SELECT 2", ""), ("",), ("SELECT 3",)]


# Arguments that come back.


def test_the_record_set_to_write_arrives_as_a_ref_and_may_be_replaced(attached, host):
    arrived = []

    def update(rs):
        arrived.append(type(rs))
        rs.value = replaced

    replaced, given = RecordSet({"DSN": "neu"}), Ref(RecordSet({"DSN": "alt"}))
    host.UpdateRecordset = update
    attached.AKT_Update(given)
    assert arrived == [Ref]
    assert given.value is replaced


def test_what_the_host_leaves_must_be_a_record_set(attached, host):
    def update(rs):
        rs.value = 5

    host.UpdateRecordset = update
    with pytest.raises(AutomationError) as caught:
        attached.AKT_Update(RecordSet({"DSN": "K"}))
    assert caught.value.number == 13


def test_the_folder_to_cut_arrives_as_a_ref(attached, tmp_path):
    seen = []

    class Standard:
        def GetTempPath(self):
            raise AssertionError("the folder of the log is there")

        def CutRight(self, text, end):
            seen.append((type(text), text.value, end))
            text.value = str(tmp_path / "anderswo")

    (tmp_path / "anderswo").mkdir()
    cvdeveloper.register_class("clqexStdC10.cUtil", Standard)
    attached.DoLog("Anruf", "angenommen")
    assert seen == [(Ref, str(tmp_path), "\\")]
    assert (tmp_path / "anderswo" / "cvDeveloper.log").exists()


def test_arguments_that_only_go_in_arrive_as_plain_values(attached, host):
    seen = []
    host.VersionBuild = 133
    host.Get_Platzhalter = lambda rs, name, sql: seen.append((rs, name, sql)) or "Meier"
    rows = RecordSet({"NAME": "Meier"})
    attached.oTools.GetSinglePlatzhalter("NAME", rows, "SELECT 1")
    assert seen == [(rows, "NAME", "SELECT 1")]
    assert seen[0][0] is rows


# What comes back out is what went in.


def test_the_host_comes_back_as_itself(attached, host):
    assert attached.Corvanta_Application is host
    assert attached.oUtil is host.Util
    assert attached.Corvanta_Connector is None


def test_record_sets_come_back_as_themselves(attached, host):
    given = RecordSet({"A": 1})
    host.answers["SELECT 1"] = given
    assert attached.oBase.CV_GetRecordset("SELECT 1") is given


def test_the_services_of_a_host_come_back_as_themselves(tmp_path):
    host = Host()
    host.Blob, host.DbIni = object(), object()
    app = attach(host, tmp_path)
    assert app.oBlob is host.Blob
    assert app.oDbIni is host.DbIni


def test_an_application_handed_to_a_host_is_the_same_object_there(attached, host):
    seen = []
    host.GetRecordset = lambda sql: seen.append(attached.oBase) or RecordSet({"A": attached})
    rows = attached.oBase.CV_GetRecordset("SELECT 1")
    assert rows.row["A"] is attached
    assert seen[0] is attached.oBase


def test_a_host_may_hand_on_record_sets_of_the_stand_alone_host(app, tmp_path):
    class Forwarding(Host):
        CurrentUserRS = property(lambda self: app.Corvanta_CurrentUserRS())
        STDRS = app.Corvanta_STDRS()

        def GetRecordset(self, sql):
            return app.oBase.CV_GetRecordset(sql)

    outer = attach(Forwarding(), tmp_path)
    assert outer.Corvanta_CurrentUserRS()["Login_Name"] == "chef"
    assert outer.Corvanta_STDRS() is Forwarding.STDRS
    assert outer.Corvanta_IsAdmin() is True
    assert outer.AD_Find("1=1", "Kennung")["DSN"] == app.AD_Find("1=1", "Kennung")["DSN"]


def test_the_stand_alone_connector_serves_as_a_running_application(app, tmp_path):
    class Running:
        IsLoggedIn, Folder, VersionBuild = True, "C:\\Corvanta", 133

        def __getattr__(self, name):
            return getattr(app.Corvanta_Connector, name)

        def UpdateRecordset(self, rs):
            app.Corvanta_Connector.UpdateRecordset(rs.value)

    outer = attach(Running(), tmp_path)
    dsn = outer.AKT_Create(strBetreff="durchgereicht")
    assert app.AKT_FindByDSN(dsn)["Subject"] == "durchgereicht"


def test_the_objects_of_a_host_that_ends_the_session_live_until_the_call_returns(tmp_path):
    class Util:
        def k(self, value):
            return value

        def SqlStrNull(self, value):
            return value

        def NewGUID(self):
            return "KEY"

        def SqlUid(self, key):
            return f"'{key}'"

    class Rows:
        EOF = True

    class Ending:
        IsLoggedIn, Folder, Blob, DbIni = True, "x", None, None

        @property
        def Util(self):
            util = Util()
            utils.append(weakref.ref(util))
            return util

        def GetRecordset(self, sql):
            app.Corvanta_Done()
            gc.collect()
            assert utils[0]() is not None, "gone while it is in use"
            return Rows()

    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    utils = []
    app.Corvanta_SetApplication(Ending())
    app.AKT_FindByDSN("K1")
    gc.collect()
    assert utils[0]() is None
    with pytest.raises(AutomationError) as raised:
        app.AKT_FindByDSN("K1")
    assert raised.value.number == 601
    assert app.Corvanta_InitType == cvdeveloper.INITTYPE_NONE
