"""The module in the life of an interpreter: imports, subinterpreters, the exit."""

import pytest

SESSION = """
import cvdeveloper

class Host:
    IsLoggedIn, Util, Folder = True, None, ""

    def GetRecordset(self, sql):
        return None

    def __del__(self):
        pass

host = Host()
app = cvdeveloper.Application()
app.Corvanta_SetApplication(host)
host.app = app
"""


def test_the_interpreter_ends_with_live_objects_in_the_registry(run_python):
    script = SESSION + """
cvdeveloper.register_active_object("Corvanta.Application", host)
cvdeveloper.register_class("Eigene.Klasse", Host)
cvdeveloper.register_class("CVConnector.Application", lambda: host)
cvdeveloper.set_message_handler(print)
print("Ende")
"""
    assert run_python(script) == "Ende\n"


def test_the_interpreter_ends_inside_a_session(run_python, folder):
    script = f"""
import cvdeveloper
app = cvdeveloper.connect({str(folder)!r})
rows = app.AKT_Find("1=1")
app.oBase, app.oTools, rows.Fields
transaction = cvdeveloper.transaction(app)
transaction.__enter__()
loop = iter(rows)
next(loop)
print("Ende")
"""
    assert run_python(script) == "Ende\n"


def test_the_interpreter_ends_with_objects_in_other_modules(run_python):
    script = SESSION + """
import builtins, sys
builtins.kept = app, host, app.AKT_Create, cvdeveloper.clsPhoneList().Phone1
sys.kept = cvdeveloper.Ref(app)
print("Ende")
"""
    assert run_python(script) == "Ende\n"


def test_the_interpreter_ends_while_a_thread_waits_for_a_session(run_python):
    script = SESSION + """
import threading, time
host.GetRecordset = lambda sql: time.sleep(60)
threading.Thread(target=lambda: app.oBase.CV_GetRecordset("SELECT 1"), daemon=True).start()
time.sleep(0.2)
threading.Thread(target=app.GetVersion, daemon=True).start()
time.sleep(0.2)
print("Ende")
"""
    assert run_python(script) == "Ende\n"


@pytest.mark.parametrize("imported_first", [True, False])
def test_what_runs_at_exit_may_still_use_the_library(run_python, imported_first):
    register = "import atexit; atexit.register(lambda: print(app.GetVersion()))\n"
    imported = "import cvdeveloper\n"
    script = imported + register if imported_first else register + imported
    assert run_python(script + "app = cvdeveloper.Application()") == "0.9.30\n"


def test_the_module_can_be_imported_anew(run_python):
    script = SESSION + """
import sys
first = cvdeveloper
for name in [name for name in sys.modules if name.startswith("cvdeveloper")]:
    del sys.modules[name]
import cvdeveloper
assert cvdeveloper is not first
again = cvdeveloper.Application()
again.Corvanta_SetApplication(host)
print(again.GetVersion(), app.GetVersion(), again.Corvanta_Application is host)
for module, one in [(cvdeveloper, again), (first, app)]:
    try:
        one.AKT_Update(5)
    except module.AutomationError as error:
        print(error.number)
"""
    assert run_python(script) == "0.9.30 0.9.30 True\n13\n13\n"


def test_importing_twice_gives_the_same_module(run_python):
    script = """
import cvdeveloper, importlib
assert importlib.import_module("cvdeveloper") is cvdeveloper
assert importlib.reload(cvdeveloper) is cvdeveloper
print(cvdeveloper.Application().GetVersion())
"""
    assert run_python(script) == "0.9.30\n"


def test_a_subinterpreter_is_refused_and_the_main_one_goes_on(run_python):
    pytest.importorskip("_xxsubinterpreters")
    script = """
import sys, _xxsubinterpreters as interpreters
import cvdeveloper
sub = interpreters.create(isolated=False)
try:
    interpreters.run_string(sub, f"import sys; sys.path[:0] = {sys.path!r}; import cvdeveloper")
except interpreters.RunFailedError as error:
    print(error)
interpreters.destroy(sub)
print(cvdeveloper.Application().GetVersion())
"""
    refused = "<class 'ImportError'>: cvdeveloper works in the main interpreter only"
    assert run_python(script) == f"{refused}\n0.9.30\n"


def test_importing_has_no_other_effect(run_python, tmp_path):
    assert run_python("import cvdeveloper", cwd=tmp_path) == ""
    assert list(tmp_path.iterdir()) == []
