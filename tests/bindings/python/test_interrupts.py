"""Ctrl-C stops a long statement, and nothing in the library swallows it."""

import os
import signal
import threading
import time

import pytest
from doubles import RecordSet

import cvdeveloper


def interrupting(*arguments):
    raise KeyboardInterrupt


def test_an_interrupt_in_a_host_reaches_the_caller(attached, host):
    host.GetRecordset = interrupting
    with pytest.raises(KeyboardInterrupt):
        attached.AKT_New()


def test_no_trap_of_the_statement_log_swallows_an_interrupt(attached, host):
    attached.FlagSqlLog = True
    host.GetRecordset = host.UpdateRecordset = interrupting
    with pytest.raises(KeyboardInterrupt):
        attached.oBase.CV_GetRecordset("SELECT 1")
    with pytest.raises(KeyboardInterrupt):
        attached.AKT_Update(RecordSet({"DSN": "K"}))


def test_the_dump_of_a_row_does_not_swallow_an_interrupt(attached):
    class Interrupted(RecordSet):
        @property
        def Fields(self):
            raise KeyboardInterrupt

    attached.FlagSqlLog = True
    with pytest.raises(KeyboardInterrupt):
        attached.AKT_Update(Interrupted({"DSN": "K"}))


def test_the_log_does_not_swallow_an_interrupt(attached):
    cvdeveloper.register_class("clqexStdC10.cUtil", interrupting)
    with pytest.raises(KeyboardInterrupt):
        attached.DoLog("Anruf", "angenommen")


@pytest.mark.parametrize("operation", ["Corvanta_IsAdmin", "Corvanta_DbVersion"])
def test_operations_that_never_fail_let_an_interrupt_through(attached, host, operation):
    host.GetRecordset = interrupting
    type(host).CurrentUserRS, kept = property(interrupting), type(host).CurrentUserRS
    try:
        with pytest.raises(KeyboardInterrupt):
            getattr(attached, operation)()
    finally:
        type(host).CurrentUserRS = kept


def test_attaching_does_not_swallow_an_interrupt(messages, folder):
    class Asked:
        IsLoggedIn = property(interrupting)

    app = cvdeveloper.Application()
    with pytest.raises(KeyboardInterrupt):
        app.Corvanta_SetApplication(Asked())
    cvdeveloper.register_class("CVConnector.Application", interrupting)
    with pytest.raises(KeyboardInterrupt):
        app.Corvanta_InitConnector(str(folder), "chef", "")
    with pytest.raises(KeyboardInterrupt):
        cvdeveloper.connect(folder)
    assert messages == []


@pytest.mark.parametrize("logged", [False, True])
def test_logging_on_does_not_swallow_an_interrupt(messages, folder, tmp_path, logged):
    class Connector:
        Logon = staticmethod(interrupting)

    cvdeveloper.register_class("CVConnector.Application", Connector)
    app = cvdeveloper.Application()
    app.LogPath, app.FlagSqlLog = str(tmp_path), logged
    with pytest.raises(KeyboardInterrupt):
        app.Corvanta_InitConnector(str(folder), "chef", "")
    assert messages == []


def test_message_boxes_do_not_swallow_an_interrupt():
    cvdeveloper.set_message_handler(interrupting)
    with pytest.raises(KeyboardInterrupt):
        cvdeveloper.Application().Corvanta_SetApplication(None)


class Stop(BaseException):
    """Not meant to be handled by programs, as KeyboardInterrupt is not."""


@pytest.mark.parametrize("kind", [KeyboardInterrupt, SystemExit, GeneratorExit, Stop])
def test_all_exceptions_that_programs_do_not_handle_pass_every_trap(attached, host, kind):
    error = kind("x")
    host.answers["SELECT 1"] = error
    attached.FlagSqlLog = True
    with pytest.raises(kind) as caught:
        attached.oBase.CV_GetRecordset("SELECT 1")
    assert caught.value is error


def test_an_interrupt_while_an_exception_is_asked_for_its_text_counts(attached, host):
    class Slow(Exception):
        __str__ = interrupting

    host.answers["SELECT 1"] = Slow()
    with pytest.raises(KeyboardInterrupt):
        attached.oBase.CV_GetRecordset("SELECT 1")


def test_an_interrupt_while_a_member_is_looked_for_counts(attached):
    class Searched:
        IsLoggedIn = True
        __dir__ = interrupting

    with pytest.raises(KeyboardInterrupt):
        attached.Corvanta_SetApplication(Searched())


def test_an_interrupt_inside_a_transaction_takes_it_back(app):
    count = sum(1 for _ in app.AKT_Find("1=1", "DSN"))
    with pytest.raises(KeyboardInterrupt), cvdeveloper.transaction(app):
        app.AKT_Create(strBetreff="abgebrochen")
        raise KeyboardInterrupt
    assert sum(1 for _ in app.AKT_Find("1=1", "DSN")) == count


LONG = "SELECT count(*) AS N FROM AKT AS A, AKT AS B, AKT AS C, AKT AS D, AKT AS E"


def after(seconds, action):
    timer = threading.Timer(seconds, action)
    timer.start()
    return timer


@pytest.mark.parametrize("logged", [False, True])
def test_ctrl_c_stops_a_long_statement(app, logged):
    app.FlagSqlLog = logged
    timer = after(0.2, lambda: os.kill(os.getpid(), signal.SIGINT))
    started = time.monotonic()
    with pytest.raises(KeyboardInterrupt):
        app.oBase.CV_GetRecordset(LONG)
    timer.join()
    assert time.monotonic() - started < 20
    assert app.AKT_Find("1=2").EOF


def test_a_signals_own_handler_may_stop_a_long_statement_too(app):
    error = TimeoutError("zu lange")

    def stop(*arguments):
        raise error

    kept = signal.signal(signal.SIGALRM, stop)
    try:
        signal.setitimer(signal.ITIMER_REAL, 0.2)
        with pytest.raises(TimeoutError) as caught:
            app.oBase.CV_GetRecordset(LONG)
        assert caught.value is error
    finally:
        signal.signal(signal.SIGALRM, kept)


def test_other_threads_run_during_a_long_statement(app):
    steps = []
    done = threading.Event()

    def count():
        while not done.is_set():
            steps.append(1)
            time.sleep(0.005)

    counter = threading.Thread(target=count)
    timer = after(0.5, lambda: os.kill(os.getpid(), signal.SIGINT))
    counter.start()
    with pytest.raises(KeyboardInterrupt):
        app.oBase.CV_GetRecordset(LONG)
    done.set()
    counter.join()
    timer.join()
    assert len(steps) > 10
