"""Checking, backing up and restoring host folders by the command line."""

import cvdeveloper


def attach(folder, tmp_path, content):
    source = tmp_path / "quelle.txt"
    source.write_text(content)
    with cvdeveloper.connect(folder) as app:
        akt = app.AKT_Create(strBetreff="mit Anlage")
        app.AKT_Blob_Add(akt, str(source))
    (stored,) = (folder / "Anlagen").iterdir()
    return stored


def test_a_folder_in_order_is_said_to_be(cvdev, folder):
    run = cvdev("check", folder)
    assert run.returncode == 0
    assert run.stdout.startswith(f"{folder} ist in Ordnung: ")
    assert run.stdout.endswith(" Datensätze, 0 gespeicherte Anlagen.\n")


def test_what_is_wrong_is_told_line_by_line(cvdev, folder, tmp_path):
    stored = attach(folder, tmp_path, "eins")
    stored.write_text("zwei")
    stored.with_name("0123ABCD-0000-4000-8000-000000000000").write_text("übrig")
    run = cvdev("check", folder)
    assert run.returncode == 1
    *problems, last = run.stdout.splitlines()
    assert len(problems) == 2
    assert problems[0].endswith("' hat einen anderen Inhalt als den gespeicherten.")
    assert "Zur Datei Anlagen/0123ABCD-0000-4000-8000-000000000000 gehört keine" in problems[1]
    assert last == f"{folder} ist nicht in Ordnung: 2 Fehler."


def test_a_backup_is_restored(cvdev, folder, tmp_path):
    attach(folder, tmp_path, "eins")
    backup = tmp_path / "sicherung.tar"
    run = cvdev("backup", folder, backup)
    assert run.returncode == 0, run.stderr
    assert run.stdout == f"{folder} ist in {backup} gesichert: {backup.stat().st_size} Bytes.\n"
    again = tmp_path / "wieder"
    run = cvdev("restore", backup, again)
    assert run.stdout == f"{again} ist aus {backup} wiederhergestellt.\n"
    assert cvdev("check", again).returncode == 0
    with cvdeveloper.connect(again) as app:
        assert not app.AKT_Find("Subject='mit Anlage'").EOF


def test_one_line_at_the_end_is_all_where_there_is_no_terminal(cvdev, folder, tmp_path):
    for arguments in (
        ("check", folder),
        ("backup", folder, tmp_path / "b.tar"),
        ("restore", tmp_path / "b.tar", tmp_path / "wieder"),
        ("init", tmp_path / "neu", "--sample"),
        ("init", tmp_path / "leer"),
    ):
        run = cvdev(*arguments)
        assert (run.returncode, run.stderr) == (0, "")
        assert len(run.stdout.splitlines()) == 1


def test_a_terminal_shows_a_bar_that_goes_at_the_end(cvdev_on_terminal, folder, tmp_path):
    for arguments, label in (
        (("check", folder), "Prüfen: Datenbank [--------"),
        (("backup", folder, tmp_path / "b.tar"), "Sichern: Datenbank ["),
        (("restore", tmp_path / "b.tar", tmp_path / "wieder"), "Zurückholen: "),
        (("init", tmp_path / "neu", "--sample"), "Beispieldaten: AKT ["),
    ):
        code, screen = cvdev_on_terminal(*arguments)
        assert code == 0
        assert label.replace("--------", "") in screen
        assert " %" in screen
        # The line is wiped before the result is written.
        assert screen.rsplit("\x1b[K", 1)[1].count("\n") == 1


def test_an_error_is_one_line(cvdev, folder, tmp_path):
    (tmp_path / "b.tar").write_text("meins")
    run = cvdev("backup", folder, tmp_path / "b.tar")
    assert run.returncode == 1
    assert run.stderr == f"cvdev: Die Datei '{tmp_path / 'b.tar'}' gibt es schon.\n"
    run = cvdev("check", tmp_path)
    assert run.returncode == 1
    assert "ist kein Corvanta-Ordner: die Datei corvanta.ini fehlt." in run.stderr
    assert cvdev("backup", folder).returncode == 2


def test_the_commands_stand_in_the_help(cvdev):
    text = cvdev("--help").stdout
    for command in (
        "cvdev user list FOLDER | add FOLDER NAME [--admin] | passwd FOLDER NAME | "
        "deactivate FOLDER NAME | activate FOLDER NAME",
        "cvdev check FOLDER",
        "cvdev backup FOLDER FILE",
        "cvdev restore FILE FOLDER",
    ):
        assert f"  {command}\n" in text
