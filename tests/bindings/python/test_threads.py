"""Threads: one caller of a session at a time; whoever waits gives up the interpreter lock."""

import sys
import threading
import time

import pytest
from doubles import Host, RecordSet

import cvdeveloper

LONG_ENOUGH = 30


def started(target):
    thread = threading.Thread(target=target, daemon=True)
    thread.start()
    return thread


def joined(*threads):
    for thread in threads:
        thread.join(LONG_ENOUGH)
    return not any(thread.is_alive() for thread in threads)


@pytest.fixture
def held(attached, host):
    """A host whose GetRecordset stays inside until it is let go."""
    host.entered, host.let_go, host.order = threading.Event(), threading.Event(), []

    def get(sql):
        host.order.append("hinein")
        host.entered.set()
        assert host.let_go.wait(LONG_ENOUGH)
        host.order.append("heraus")
        return RecordSet({"A": 1})

    host.GetRecordset = get
    return host


def test_a_second_thread_waits_for_a_busy_session(attached, held):
    first = started(lambda: attached.oBase.CV_GetRecordset("SELECT 1"))
    assert held.entered.wait(LONG_ENOUGH)
    waiting = started(lambda: held.order.append(attached.GetVersion()))
    time.sleep(0.1)  # this thread runs: nobody who waits holds the interpreter lock
    assert waiting.is_alive()
    assert held.order == ["hinein"]
    held.let_go.set()
    assert joined(first, waiting)
    assert held.order == ["hinein", "heraus", "0.9.30"]


def test_the_workers_of_a_session_wait_for_it_too(attached, held):
    tools, base = attached.oTools, attached.oBase
    first = started(lambda: base.CV_GetRecordset("SELECT 1"))
    assert held.entered.wait(LONG_ENOUGH)
    waiting = [
        started(lambda: tools.vbLike("a", "a")),
        started(lambda: base.SetDBPassword("x")),
        started(lambda: setattr(attached, "FlagSqlLog", False)),
    ]
    time.sleep(0.1)
    assert all(thread.is_alive() for thread in waiting)
    held.let_go.set()
    assert joined(first, *waiting)


def test_other_sessions_are_not_held_up(attached, held):
    first = started(lambda: attached.oBase.CV_GetRecordset("SELECT 1"))
    assert held.entered.wait(LONG_ENOUGH)
    other = cvdeveloper.Application()
    other.Corvanta_SetApplication(Host())
    assert other.GetVersion() == "0.9.30"
    assert cvdeveloper.clsTools().vbLike("a", "a") is True
    held.let_go.set()
    assert joined(first)


def test_the_thread_inside_may_call_its_session_again(attached, host):
    host.GetRecordset = lambda sql: RecordSet({"A": attached.Corvanta_Folder()})
    assert attached.oBase.CV_GetRecordset("SELECT 1").row == {"A": "C:\\Corvanta"}


def test_threads_that_call_into_python_and_back_do_not_lock_each_other_out(attached, host):
    failures = []

    def get(sql):
        attached.GetVersion()
        time.sleep(0)  # gives others the interpreter lock, while the session is ours
        return RecordSet({"A": sql})

    def work(name):
        try:
            for number in range(300):
                sql = f"{name} {number}"
                assert attached.oBase.CV_GetRecordset(sql).row == {"A": sql}
        except BaseException as error:
            failures.append(error)

    host.GetRecordset = get
    before = sys.getswitchinterval()
    sys.setswitchinterval(1e-5)
    try:
        assert joined(*[started(lambda name=name: work(name)) for name in "abcd"])
    finally:
        sys.setswitchinterval(before)
    assert failures == []


def test_threads_share_a_session_of_the_stand_alone_host(app):
    failures, made = [], []

    def work(name):
        try:
            for number in range(20):
                dsn = app.AKT_Create(strBetreff=f"{name} {number}")
                made.append(dsn)
                assert app.AKT_FindByDSN(dsn)["Subject"] == f"{name} {number}"
        except BaseException as error:
            failures.append(error)

    assert joined(*[started(lambda name=name: work(name)) for name in "abc"])
    assert failures == []
    assert len(set(made)) == 60


def test_sessions_of_one_folder_write_side_by_side(folder):
    failures = []

    def work(name):
        try:
            with cvdeveloper.connect(folder) as app:
                for number in range(10):
                    app.AKT_Create(strBetreff=f"{name} {number}", strStichwort1="Fäden")
        except BaseException as error:
            failures.append(error)

    assert joined(*[started(lambda name=name: work(name)) for name in "abc"])
    assert failures == []
    with cvdeveloper.connect(folder) as app:
        assert sum(1 for _ in app.AKT_Find("Stichwort1='Fäden'")) == 30


def test_an_exception_in_a_thread_stays_in_it(attached, host):
    error, caught = RuntimeError("kaputt"), []

    def work():
        try:
            attached.oBase.CV_GetRecordset("SELECT 1")
        except RuntimeError as raised:
            caught.append(raised)

    host.answers["SELECT 1"] = error
    assert joined(started(work))
    assert caught == [error]


def test_objects_may_go_in_another_thread_than_they_came_in(folder):
    apps = [cvdeveloper.connect(folder) for _ in range(3)]
    record_sets = [app.AKT_Find("1=1") for app in apps]

    def drop():
        apps.clear()
        record_sets.clear()

    assert joined(started(drop))
    assert (apps, record_sets) == ([], [])


def test_messages_that_connect_keeps_back_are_those_of_its_own_thread(messages, folder):
    entered, let_go = threading.Event(), threading.Event()

    class Slow:
        Util = Blob = DbIni = None

        def Logon(self, path, user, password):
            entered.set()
            assert let_go.wait(LONG_ENOUGH)

    cvdeveloper.register_class("CVConnector.Application", Slow)
    connecting = started(lambda: cvdeveloper.connect(folder))
    assert entered.wait(LONG_ENOUGH)
    cvdeveloper.Application().Corvanta_SetApplication(None)
    let_go.set()
    assert joined(connecting)
    assert messages == ["Corvanta.Application-Objekt ist nicht vorhanden."]
