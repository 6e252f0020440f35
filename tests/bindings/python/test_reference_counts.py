"""Ten thousand calls of any kind, failing ones too, leave nothing behind."""

import gc
import sys

import pytest
from doubles import RecordSet

import cvdeveloper
from cvdeveloper import Ref

CALLS = 10_000


def growth(action, calls=CALLS):
    """Blocks of memory that the calls leave behind, beyond what the first ones set up."""
    for _ in range(5):
        action()
    gc.collect()
    gc.disable()
    try:
        before = sys.getallocatedblocks()
        for _ in range(calls):
            action()
        return sys.getallocatedblocks() - before
    finally:
        gc.enable()


def failing(action):
    def attempt():
        try:
            action()
        except (cvdeveloper.AutomationError, RuntimeError):
            return
        raise AssertionError("no error")

    return attempt


@pytest.fixture
def calls(attached, host):
    tools, phones, error = cvdeveloper.clsTools(), cvdeveloper.clsPhoneList(), RuntimeError("x")
    phones.Add("0201 1", "", "Büro")
    rows, buffer = RecordSet({"A": 1}), Ref("a|b")
    host.answers = {"SELECT 1": rows, "SELECT 2": error}
    base, value = attached.oBase, object()

    def raising():
        error.__traceback__ = None  # each raising adds its lines
        base.CV_GetRecordset("SELECT 2")

    def references():
        buffer.value = "a|b"
        tools.StrList_DeleteFirst(buffer)

    def values():
        for given in (None, True, 5, 2.5, "x", b"x", value, cvdeveloper.Empty):
            rows.row["A"] = given
            rows.written.clear()
            base.Sql_CopyFields(rows, rows)

    def attributes():
        attached.FlagSqlLog = attached.FlagSqlLog
        assert attached.oTools is not None

    return {
        "methods": lambda: tools.vbLike("a", "a"),
        "names": lambda: tools.vbLike(strPattern="a", strText="a"),
        "references": references,
        "attributes": attributes,
        "indexed properties": lambda: phones.Phone1[1] + phones.Phone2(1),
        "enumerations": lambda: attached.Corvanta_InitType,
        "hosts": lambda: base.CV_GetRecordset("SELECT 1"),
        "values": values,
        "exceptions of hosts": failing(raising),
        "missing members": failing(lambda: attached.AKT_Creat),
        "wrong arguments": failing(lambda: tools.vbLike(None, strPatern="x")),
        "wrong values": failing(lambda: tools.FormatDateTime(object())),
        "too many arguments": failing(lambda: tools.vbLike("a", "b", "c")),
        "texts of help": lambda: cvdeveloper.clsTools.vbLike.__doc__,
        "workers": lambda: cvdeveloper.Application().oBase,
        "registry": lambda: cvdeveloper.register_active_object("Eigene.Klasse", value),
    }


@pytest.mark.parametrize(
    "kind",
    ["methods", "names", "references", "attributes", "indexed properties", "enumerations", "hosts",
     "values", "exceptions of hosts", "missing members", "wrong arguments", "wrong values",
     "too many arguments", "texts of help", "workers", "registry"],
)  # fmt: skip
def test_ten_thousand_calls_leave_nothing_behind(calls, host, kind):
    def call():
        calls[kind]()
        host.statements.clear()

    assert growth(call) < 50


def test_counts_of_shared_objects_stay_level(attached, host, calls):
    shared = [None, True, cvdeveloper.Empty, host, host.Util, attached, type(attached), Ref,
              cvdeveloper.AutomationError, cvdeveloper.INITTYPE_APPLICATION]  # fmt: skip
    before = [sys.getrefcount(one) for one in shared]
    for _ in range(1000):
        for call in calls.values():
            call()
    host.statements.clear()
    gc.collect()
    after = [sys.getrefcount(one) for one in shared]
    assert all(abs(new - old) < 20 for old, new in zip(before, after, strict=True))


def test_record_sets_of_the_stand_alone_host_leave_nothing_behind(app):
    rows = app.AKT_Find("Subject LIKE 'A%'", "Subject")

    def read():
        rows.MoveFirst()
        for row in rows:
            assert row["Subject"] == rows["Subject"] == rows.Fields.Item("Subject").Value

    assert growth(read, 200) < 50
