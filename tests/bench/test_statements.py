"""What the hand-written peers run is what the library sends."""

import re
from pathlib import Path

import pytest

import cvdeveloper

STATEMENTS = Path(__file__).resolve().parents[2] / "bench" / "statements.sql"
# Written by the host itself, which the library's log does not show, or not by the gateway.
NOT_LOGGED = {"take_number", "user", "insert_activity", "insert_link", "update_detail",
              "attachments_to_copy"}


def peers_statements():
    parts = re.split(r"^-- name: (\w+)\n", STATEMENTS.read_text(encoding="utf-8"), flags=re.M)[1:]
    return {
        name: " ".join(line for line in body.splitlines() if line and not line.startswith("--"))
        for name, body in zip(parts[::2], parts[1::2], strict=True)
    }


def without_values(statement):
    return re.sub(r"'[^']*'|:\w+", "?", statement)


@pytest.fixture
def app(tmp_path):
    cvdeveloper.host.create(str(tmp_path / "buero"), sample=True)
    with cvdeveloper.connect(str(tmp_path / "buero")) as attached:
        attached.LogPath = str(tmp_path)
        yield attached


def sent(app, tmp_path, action):
    """The statements that the library has sent, in their order."""
    log = tmp_path / "cvDeveloper.log"
    log.unlink(missing_ok=True)
    app.FlagSqlLog = True
    action()
    app.FlagSqlLog = False
    lines = log.read_text(encoding="utf-8").splitlines()
    return [without_values(line.split(" - GetRecordset : ", 1)[1])
            for line in lines if " - GetRecordset : " in line]


def expected(*names):
    statements = peers_statements()
    return [without_values(statements[name]) for name in names]


def activity_with_detail(app):
    row = app.oBase.CV_GetRecordset("SELECT AKT_DSN, FldArt_DSN FROM AKTDET")
    return row["AKT_DSN"], row["FldArt_DSN"]


def test_making_an_activity(app, tmp_path):
    assert sent(app, tmp_path, lambda: app.AKT_Create("", "Anruf")) == expected(
        "no_activity", "number", "link", "link")


def test_details(app, tmp_path):
    record, kind = activity_with_detail(app)
    assert sent(app, tmp_path, lambda: app.oBase.Det_GetValue("AKT", record, kind)) == expected(
        "detail_value")
    assert sent(app, tmp_path, lambda: app.oBase.Det_SetValue("AKT", record, kind, "neu")
                ) == expected("detail_row")


def test_adding_features(app, tmp_path):
    assert sent(app, tmp_path, lambda: app.oBase.Mkm_Add("AKT", "A", "B,C")) == expected(
        "link", "link")


def test_finding(app, tmp_path):
    assert sent(app, tmp_path, lambda: app.AKT_Find("Projekte_Dsn='A'")) == expected("find")


def test_copying(app, tmp_path):
    record, _ = activity_with_detail(app)
    features = len([key for key in app.AKT_Merkmal_Get(record).split(",") if key])
    project = app.oBase.Sql_GetField("AKT", record, "Projekte_Dsn")

    def copy():
        originals = app.AKT_Find(f"Projekte_Dsn='{project}'", "Kennung")
        app.AKT_Update(app.AKT_Copy(originals, "", "P"))

    statements = sent(app, tmp_path, copy)
    assert statements[:2] == expected("activities_to_copy", "no_copy")
    each = expected("number", "features_to_copy", *["link"] * features, "details_to_copy",
                    "no_detail")
    assert features > 0
    assert set(statements[2:]) == set(each)


def test_all_that_the_log_can_show_is_compared():
    compared = set(re.findall(r'"(\w+)"', Path(__file__).read_text(encoding="utf-8")))
    assert set(peers_statements()) - NOT_LOGGED <= compared
