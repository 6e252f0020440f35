"""An exception of a Python host goes through the library as the very same object."""

import traceback

import pytest
from doubles import Host, RecordSet

import cvdeveloper


class HostFailure(Exception):
    """What a host raises of its own."""


def raising(error):
    def fail(*arguments):
        raise error

    return fail


@pytest.fixture(
    params=[HostFailure("kaputt"), KeyError("x"), cvdeveloper.AutomationError(7, "Host", "kaputt")],
    ids=lambda error: type(error).__name__,
)
def error(request):
    return request.param


def test_the_very_same_exception_reaches_the_caller(attached, host, error):
    host.GetRecordset = raising(error)
    with pytest.raises(type(error)) as caught:
        attached.AKT_Create(strBetreff="Anruf")
    assert caught.value is error


def test_exceptions_of_every_host_member_reach_the_caller(attached, host, error):
    row = RecordSet({"DSN": "K"})
    host.UpdateRecordset = raising(error)
    with pytest.raises(type(error)) as caught:
        attached.AKT_Update(row)
    assert caught.value is error
    host.Util.NewGUID = raising(error)
    with pytest.raises(type(error)) as caught:
        attached.AKT_New()
    assert caught.value is error


def test_exceptions_of_a_property_reach_the_caller(attached, error):
    class Refusing(RecordSet):
        @property
        def EOF(self):
            raise error

    with pytest.raises(type(error)) as caught:
        attached.oBase.SQL_DeleteAll(Refusing())
    assert caught.value is error


def test_an_attribute_error_inside_a_member_is_the_members_own(attached, host):
    error = AttributeError("tief drinnen")

    class Broken(Host):
        @property
        def CurrentUserRS(self):
            raise error

    attached.Corvanta_SetApplication(Broken())
    with pytest.raises(AttributeError) as caught:
        attached.Corvanta_CurrentUserRS()
    assert caught.value is error


def test_the_traceback_shows_the_hosts_own_lines(attached, host):
    host.GetRecordset = raising(HostFailure("kaputt"))
    with pytest.raises(HostFailure) as caught:
        attached.AKT_New()
    names = [frame.name for frame in traceback.extract_tb(caught.value.__traceback__)]
    assert names[-1] == "fail"
    assert names[0] == "test_the_traceback_shows_the_hosts_own_lines"


def test_the_exceptions_cause_stays_with_it(attached, host):
    def fail(sql):
        try:
            raise ValueError("innen")
        except ValueError as inner:
            raise HostFailure("außen") from inner

    host.GetRecordset = fail
    with pytest.raises(HostFailure) as caught:
        attached.AKT_New()
    assert str(caught.value.__cause__) == "innen"


def test_an_exception_passes_several_layers_of_library_and_host(attached, host, tmp_path):
    error = HostFailure("kaputt")
    inner_host = Host()
    inner_host.GetRecordset = raising(error)
    inner = cvdeveloper.Application()
    inner.LogPath = str(tmp_path)
    inner.Corvanta_SetApplication(inner_host)
    host.GetRecordset = inner.oBase.CV_GetRecordset
    with pytest.raises(HostFailure) as caught:
        attached.AKT_New()
    assert caught.value is error


def test_a_failed_call_leaves_the_session_usable(attached, host):
    host.answers["SELECT * FROM AKT  WHERE 1=2"] = HostFailure("kaputt")
    with pytest.raises(HostFailure):
        attached.AKT_New()
    host.answers.clear()
    assert attached.oBase.Sql_Find("AKT", "1=2").EOF


# While statements are logged, the gateway traps errors.


@pytest.mark.parametrize(
    ("error", "description"),
    [
        (HostFailure("kaputt"), "kaputt"),
        (HostFailure(), ""),
        (KeyError("x"), "'x'"),
        (cvdeveloper.AutomationError(7, "Host", "kaputt"), "kaputt"),
    ],
    ids=repr,
)
def test_a_trapped_exception_is_logged_with_its_text(
    attached, host, log_lines, error, description
):
    host.answers["SELECT 1"] = error
    attached.FlagSqlLog = True
    assert attached.oBase.CV_GetRecordset("SELECT 1") is None
    assert log_lines() == [
        "GetRecordset : SELECT 1",
        f"ERROR GetRecordset : {description}| SQL: SELECT 1",
    ]


def test_a_trapped_exception_while_writing_is_logged_with_the_row(attached, host, log_lines):
    host.UpdateRecordset = raising(HostFailure("kaputt"))
    attached.FlagSqlLog = True
    attached.AKT_Update(RecordSet({"DSN": "K"}))
    assert log_lines() == [
        "UpdateRecordset :",
        "DSN = K",
        "ERROR GetRecordset : kaputt | RS:",
        "DSN = K",
    ]


class Untellable(Exception):
    def __str__(self):
        raise ValueError("kein Text")


def test_an_exception_that_has_no_text_is_trapped_all_the_same(attached, host, log_lines):
    host.answers["SELECT 1"] = Untellable()
    attached.FlagSqlLog = True
    assert attached.oBase.CV_GetRecordset("SELECT 1") is None
    assert log_lines()[-1] == "ERROR GetRecordset : | SQL: SELECT 1"


def test_traps_of_the_library_swallow_exceptions(attached, host):
    host.GetRecordset = raising(HostFailure("kaputt"))
    assert attached.Corvanta_IsAdmin() is False
    assert attached.Corvanta_DbVersion() == 0.0


def test_a_missing_session_is_raised_also_while_statements_are_logged(log_lines, tmp_path):
    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    app.FlagSqlLog = True
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        app.oBase.CV_GetRecordset("SELECT 1")
    assert (caught.value.number, caught.value.source) == (601, "")
    assert log_lines() == ["GetRecordset : SELECT 1"]
