"""The stand-alone host as a running application, and its numbers, as Python programs use them."""

import subprocess
import sys

import pytest

import cvdeveloper

TAKE = """
import sys, cvdeveloper
with cvdeveloper.connect(sys.argv[1]) as app:
    for _ in range(40):
        print(app.STD_GetField("Kennung_AKT").strip())
"""

SHOW = """
import sys, cvdeveloper
cvdeveloper.host.start(sys.argv[1])
app = cvdeveloper.Application()
app.Corvanta_InitApplication()
app.oBase.Pane_Find("F_AD", "Kennung = 'A-100003'")
app.oBase.Pane_Show("F_AD")
"""


@pytest.fixture
def folder(tmp_path):
    cvdeveloper.host.create(tmp_path / "büro", sample=True)
    yield str(tmp_path / "büro")
    cvdeveloper.reset_registry()


@pytest.fixture
def app(folder):
    cvdeveloper.host.start(folder)
    application = cvdeveloper.Application()
    application.Corvanta_InitApplication()
    yield application
    application.Corvanta_Done()


def test_a_started_application_is_the_running_one(folder):
    running = cvdeveloper.host.start(folder)
    assert running.VersionBuild == 133
    assert running.IsLoggedIn is True
    app = cvdeveloper.Application()
    app.Corvanta_InitApplication()
    assert app.Corvanta_InitType == cvdeveloper.INITTYPE_APPLICATION
    assert app.Corvanta_Folder() == folder
    assert app.Corvanta_Application.Folder == folder


def test_an_application_may_be_set_by_hand(folder):
    running = cvdeveloper.host.start(folder, user="chef", password="")
    cvdeveloper.register_active_object("Corvanta.Application", None)
    app = cvdeveloper.Application()
    app.Corvanta_SetApplication(running)
    assert app.Corvanta_InitType == cvdeveloper.INITTYPE_APPLICATION


def test_starting_with_a_wrong_password_says_so(folder):
    with pytest.raises(cvdeveloper.AutomationError, match="Benutzer oder Kennwort stimmt nicht"):
        cvdeveloper.host.start(folder, password="falsch")


def test_letters_are_filled_from_the_record_and_the_statement(app):
    adresse = app.AD_Find("Kennung = 'A-100004'", "")
    text = app.oTools.ReplacePlatzhalter(
        "{BriefAnrede}, wir in {Sitz}{nichts}.", adresse, "SELECT Ort AS Sitz FROM Std"
    )
    assert text == "Sehr geehrter Herr Zinsmeier, wir in Musterstadt."


def test_detail_values_are_read_and_what_cannot_be_read_comes_back(app):
    anfrage = app.ANF_Create(strAdDsn="AD000000-0000-4000-8000-000000000004")
    for name, text in [("Zimmer", "3 - 4"), ("Wohnfläche", "groß")]:
        app.ANF_Detail_Set(anfrage, app.FldArt_FindDsnByName(name), text)
    details = app.oBase.CV_GetRecordset(
        f"SELECT * FROM ANFDET WHERE ANF_DSN='{anfrage}' ORDER BY Eingabe"
    )
    assert app.oBase.CV_ParseAndFill(details, 0) == "Wohnfläche: groß"
    app.oBase.CV_UpdateRecordset(details)
    low, high = cvdeveloper.Ref(), cvdeveloper.Ref()
    found = app.oBase.Det_GetNumValue("ANF", anfrage, app.FldArt_FindDsnByName("Zimmer"), low, high)
    assert (found, low.value, high.value) == (True, 3.0, 4.0)


def test_a_caller_is_found_by_the_number_that_was_saved(app):
    adresse = app.AD_New()
    app.AD_SetName(adresse, "Dr.", "Hans", "Meier")
    telefon = app.AD_GetPhoneList(adresse)
    telefon.Add("0201 99", "0171 99", "privat")
    app.AD_SetPhoneList(adresse, telefon)
    dsn = adresse["DSN"]
    app.AD_Update(adresse)
    assert (adresse["NAME"], adresse["IDX_NAME"]) == ("Dr. Hans Meier", "Meier")
    assert app.AD_FindDSNByPhoneEMail("0171 99") == dsn
    app.AD_DeleteByDsn(dsn)
    assert app.AD_FindDSNByPhoneEMail("0171 99") == ""


def test_a_form_is_written_to_the_terminal(folder):
    run = subprocess.run(
        [sys.executable, "-c", SHOW, folder], capture_output=True, text=True, check=True
    )
    lines = run.stdout.splitlines()
    assert lines[:3] == [
        "Formular F_AD",
        "Bedingung: Kennung = 'A-100003'",
        "Ein Datensatz gefunden:",
    ]
    assert "  Firma = Beispielbank eG" in lines


def test_numbers_are_handed_out_once_each_to_programs_that_run_at_the_same_time(folder):
    programs = [
        subprocess.Popen([sys.executable, "-c", TAKE, folder], stdout=subprocess.PIPE, text=True)
        for _ in range(4)
    ]
    numbers = [line for program in programs for line in program.communicate()[0].splitlines()]
    assert all(program.returncode == 0 for program in programs)
    assert len(numbers) == 160
    assert len(set(numbers)) == 160
