"""Users by the command line."""

import cvdeveloper
import pytest

LOG_ON_FAILED = -2147217843
ROW_CHANGED = -2147217864


def can_log_on(folder, user, password):
    try:
        with cvdeveloper.connect(folder, user, password):
            return True
    except cvdeveloper.AutomationError as error:
        assert error.number == LOG_ON_FAILED
        return False


def test_a_user_is_added_with_the_password_from_standard_input(cvdev, folder):
    run = cvdev("user", "add", folder, "Anna", text="Geheim ß\n")
    assert (run.returncode, run.stdout) == (0, "Der Benutzer 'Anna' ist angelegt.\n")
    assert can_log_on(folder, "anna", "geheim ß")
    assert not can_log_on(folder, "anna", "geheim")


def test_a_password_is_changed(cvdev, folder):
    run = cvdev("user", "passwd", folder, "chef", text="neu\r\n")
    assert run.stdout == "Das Kennwort von 'chef' ist geändert.\n"
    assert can_log_on(folder, "chef", "neu")
    assert not can_log_on(folder, "chef", "")


def test_users_are_listed_with_what_they_may_do(cvdev, folder):
    cvdev("user", "add", folder, "Änne", "--admin", text="x\n")
    lines = [line.split() for line in cvdev("user", "list", folder).stdout.splitlines()]
    assert lines[0] == ["Änne", "Änne", "aktiv,", "Chef"]
    assert ["chef", "Carla", "Muster", "aktiv,", "Chef"] in lines
    assert ["vera", "Vera", "Beispiel", "aktiv,", "ohne", "Kennwort:", "kann", "sich", "nicht",
            "anmelden"] in lines  # fmt: skip


def test_a_terminal_shows_no_password_and_asks_twice(cvdev_on_terminal, folder):
    code, screen = cvdev_on_terminal(
        "user", "add", folder, "anna", lines=["ganz-geheim", "ganz-geheim"]
    )
    assert code == 0
    assert screen.replace("\r", "") == (
        "Neues Kennwort: \nNoch einmal: \nDer Benutzer 'anna' ist angelegt.\n"
    )
    assert can_log_on(folder, "anna", "ganz-geheim")


def test_two_different_passwords_change_nothing(cvdev_on_terminal, folder):
    code, screen = cvdev_on_terminal("user", "passwd", folder, "chef", lines=["eins", "zwei"])
    assert code == 1
    assert "Die beiden Kennwörter sind verschieden; es ist nichts geändert." in screen
    assert can_log_on(folder, "chef", "")


@pytest.mark.parametrize(
    ("arguments", "text", "message"),
    [
        (("add", "chef"), "x\n", "cvdev: Den Benutzer 'chef' gibt es schon.\n"),
        (("add", "anna"), "\n", "cvdev: Das Kennwort ist leer; es ist nichts geändert.\n"),
        (("passwd", "niemand"), "x\n", "cvdev: Einen Benutzer 'niemand' gibt es nicht.\n"),
        (("deactivate", "niemand"), "", "cvdev: Einen Benutzer 'niemand' gibt es nicht.\n"),
        (("activate", "niemand"), "", "cvdev: Einen Benutzer 'niemand' gibt es nicht.\n"),
    ],
)
def test_what_cannot_be_done_is_told_in_one_line(cvdev, folder, arguments, text, message):
    before = cvdev("user", "list", folder).stdout
    action, name = arguments
    run = cvdev("user", action, folder, name, text=text)
    assert (run.returncode, run.stderr) == (1, message)
    assert cvdev("user", "list", folder).stdout == before


def test_a_password_is_no_argument(cvdev, folder):
    run = cvdev("user", "passwd", folder, "chef", "geheim")
    assert run.returncode == 2
    assert "FOLDER and NAME are needed" in run.stderr
    assert can_log_on(folder, "chef", "")


def test_passwords_and_users_leave_a_line_in_the_log(cvdev, folder):
    cvdev("user", "add", folder, "anna", text="ganz-geheim\n")
    cvdev("user", "passwd", folder, "anna", text="noch-geheimer\n")
    cvdev("user", "deactivate", folder, "anna")
    cvdev("user", "activate", folder, "anna")
    log = (folder / "corvanta.log").read_text(encoding="utf-8")
    assert "Benutzer 'anna' angelegt" in log
    assert "Kennwort von 'anna' geändert" in log
    assert "Benutzer 'anna' ist jetzt nicht aktiv" in log
    assert "Benutzer 'anna' ist jetzt aktiv" in log
    assert "geheim" not in log
    assert (folder / "corvanta.log").stat().st_mode & 0o777 == 0o600


def test_a_failed_log_on_from_python_counts_once(folder):
    assert not can_log_on(folder, "chef", "falsch")
    log = (folder / "corvanta.log").read_text(encoding="utf-8")
    assert len(log.splitlines()) == 1
    assert "Anmeldung von 'chef' abgelehnt: falsches Kennwort, Fehlversuch 1" in log


def test_an_inactive_user_is_told_so(cvdev, folder):
    cvdev("user", "add", folder, "anna", text="x\n")
    run = cvdev("user", "deactivate", folder, "Anna")
    assert (run.returncode, run.stdout) == (0, "Der Benutzer 'Anna' ist nicht aktiv.\n")
    with pytest.raises(cvdeveloper.AutomationError) as raised:
        cvdeveloper.connect(folder, "anna", "x")
    assert raised.value.description == (
        "Die Anmeldung von 'anna' ist fehlgeschlagen: der Benutzer ist nicht aktiv und darf sich "
        "nicht anmelden."
    )


def test_the_list_shows_who_is_inactive(cvdev, folder):
    cvdev("user", "deactivate", folder, "vera")
    users = cvdev("user", "list", folder).stdout.splitlines()
    (vera,) = (line.split(maxsplit=3)[3] for line in users if line.startswith("vera "))
    assert vera == "nicht aktiv, ohne Kennwort: kann sich nicht anmelden"
    assert sum("nicht aktiv" in line for line in users) == 1


def test_a_user_made_active_again_has_the_old_password(cvdev, folder):
    cvdev("user", "add", folder, "anna", text="x\n")
    cvdev("user", "deactivate", folder, "anna")
    assert not can_log_on(folder, "anna", "x")
    run = cvdev("user", "activate", folder, "anna")
    assert (run.returncode, run.stdout) == (0, "Der Benutzer 'anna' ist aktiv.\n")
    assert can_log_on(folder, "anna", "x")


def test_the_last_administrator_comes_back_by_the_command_line(cvdev, folder):
    assert cvdev("user", "deactivate", folder, "chef").returncode == 0
    assert not can_log_on(folder, "chef", "")
    assert cvdev("user", "activate", folder, "chef").returncode == 0
    assert can_log_on(folder, "chef", "")


def test_who_is_logged_on_works_on_when_made_inactive(cvdev, folder):
    with cvdeveloper.connect(folder) as app:
        cvdev("user", "deactivate", folder, "chef")
        assert app.AKT_Create(strBetreff="noch da") != ""


def test_a_record_set_read_before_does_not_take_it_back(cvdev, folder):
    with cvdeveloper.connect(folder) as app:
        users = app.oBase.CV_GetRecordset("SELECT * FROM Benutzer WHERE Login_Name='vera'")
        cvdev("user", "deactivate", folder, "vera")
        users["Name"] = "Vera Anders"
        with pytest.raises(cvdeveloper.AutomationError) as raised:
            app.oBase.CV_UpdateRecordset(users)
        assert raised.value.number == ROW_CHANGED
