"""Record sets of the stand-alone host as Python sees them."""

from collections.abc import Mapping

import pytest

import cvdeveloper
from cvdeveloper import AutomationError


@pytest.fixture
def rows(app):
    """Three activities."""
    for number in (1, 2, 3):
        app.AKT_Create(strBetreff=f"Nr. {number}", strStichwort1="drei")
    return app.AKT_Find("Stichwort1='drei'", "Subject")


def test_the_members_of_a_record_set_are_there(rows):
    assert rows.EOF is False
    assert rows.Fields.Item("Subject").Value == "Nr. 1"
    assert rows.MoveNext() is None
    assert rows.Fields.Item("Subject").Value == "Nr. 2"
    rows.MoveFirst()
    assert rows.Fields.Item("SUBJECT").Value == "Nr. 1"
    rows.Delete()
    rows.MoveNext()
    assert rows["Subject"] == "Nr. 2"


def test_fields_have_count_and_item_by_name_or_position(rows):
    fields = rows.Fields
    names = [fields.Item(position).Name for position in range(fields.Count)]
    assert names[0] == "DSN"
    assert fields.Item("dsn").Name == "DSN"
    with pytest.raises(AutomationError) as caught:
        fields.Item(fields.Count)
    assert caught.value.number == 3265


def test_a_field_has_name_value_type_and_chunks(app, rows):
    field = rows.Fields.Item("Subject")
    assert (field.Name, field.Value, field.Type) == ("Subject", "Nr. 1", 200)
    field.Value = "anders"
    assert rows["Subject"] == "anders"
    note = rows.Fields.Item("Notiz")
    note.Value = "abcde"
    assert [note.GetChunk(2), note.GetChunk(2), note.GetChunk(2), note.GetChunk(2)] == [
        "ab", "cd", "e", None
    ]  # fmt: skip


def test_brackets_and_parentheses_are_short_for_the_value(rows):
    assert rows["Subject"] == rows.Fields.Item("Subject").Value == "Nr. 1"
    assert rows["sUbJeCt"] == "Nr. 1"
    assert rows("Subject") == "Nr. 1"
    assert rows[0] == rows["DSN"]
    assert rows.Fields["Subject"].Value == "Nr. 1"
    assert rows.Fields("Subject").Value == "Nr. 1"


def test_writing_through_brackets_changes_the_row(app, rows):
    rows["Subject"] = "geändert"
    rows["Datum"] = 45352.5
    app.AKT_Update(rows)
    again = app.AKT_FindByDSN(rows["DSN"])
    assert again["Subject"] == "geändert"
    assert str(again["Datum"]) == "2024-03-01 12:00:00"


def test_unknown_fields_are_an_error_that_names_the_nearest(rows):
    with pytest.raises(AutomationError) as caught:
        rows["Subjekt"]
    assert caught.value.number == 3265
    assert caught.value.description.startswith("Feld 'Subjekt' gibt es in AKT nicht. Meinten Sie ")
    assert "Subject" in caught.value.description
    with pytest.raises(AutomationError):
        rows["Subjekt"] = "x"


@pytest.mark.parametrize(
    ("key", "number"), [(-1, 3265), (10_000, 3265), (2**32, 6), (10**30, 6), (None, 13), (1.5, 13)]
)
def test_a_key_that_is_no_field_is_an_error(rows, key, number):
    with pytest.raises(AutomationError) as caught:
        rows[key]
    assert caught.value.number == number


def test_fields_cannot_be_deleted(rows):
    with pytest.raises(AutomationError) as caught:
        del rows["Subject"]
    assert caught.value.number == 13


def test_there_is_no_length(rows):
    with pytest.raises(TypeError, match="has no len"):
        len(rows)
    assert bool(rows) is True


def test_iteration_begins_at_the_current_row(rows):
    rows.MoveNext()
    assert [row["Subject"] for row in rows] == ["Nr. 2", "Nr. 3"]
    assert rows.EOF is True
    assert list(rows) == []
    rows.MoveFirst()
    assert [row["Subject"] for row in rows] == ["Nr. 1", "Nr. 2", "Nr. 3"]


def test_inside_the_loop_the_record_set_stands_on_the_row(app, rows):
    for row in rows:
        rows["Notiz"] = f"zu {row['Subject']}"
    app.AKT_Update(rows)
    assert [row["Notiz"] for row in app.AKT_Find("Stichwort1='drei'", "Subject")] == [
        "zu Nr. 1", "zu Nr. 2", "zu Nr. 3"
    ]  # fmt: skip


def test_a_loop_that_is_left_can_be_taken_up_again(rows):
    for row in rows:
        if row["Subject"] == "Nr. 2":
            break
    assert rows["Subject"] == "Nr. 2"
    assert [row["Subject"] for row in rows] == ["Nr. 2", "Nr. 3"]


def test_an_empty_record_set_has_no_rows(app):
    rs = app.AKT_Find("1=2")
    assert list(rs) == []
    with pytest.raises(AutomationError) as caught:
        rs["Subject"]
    assert caught.value.number == 3021


def test_rows_are_snapshots(app, rows):
    first, *others = rows
    rows.MoveFirst()
    rows["Subject"] = "geändert"
    assert first["Subject"] == "Nr. 1"
    app.Corvanta_Done()
    assert [row["Subject"] for row in others] == ["Nr. 2", "Nr. 3"]


def test_a_row_is_a_mapping_by_name_without_regard_to_case(rows):
    row = next(iter(rows))
    assert isinstance(row, Mapping)
    assert type(row) is cvdeveloper.Row
    assert row["Subject"] == row["SUBJECT"] == row["subject"] == "Nr. 1"
    assert "STICHWORT1" in row
    assert "Subjekt" not in row
    assert row.get("Subjekt", 5) == 5
    assert len(row) == rows.Fields.Count
    assert list(row)[0] == "DSN"
    assert dict(row)["Subject"] == "Nr. 1"
    assert row == dict(row)


@pytest.mark.parametrize("key", ["Subjekt", 0, None])
def test_what_a_row_does_not_have_is_a_key_error(rows, key):
    with pytest.raises(KeyError) as caught:
        next(iter(rows))[key]
    assert caught.value.args == (key,)


def test_a_row_cannot_be_changed(rows):
    row = next(iter(rows))
    with pytest.raises(TypeError):
        row["Subject"] = "x"


def test_a_row_shows_its_values(app):
    rs = app.oBase.CV_GetRecordset("SELECT Version AS V FROM Version")
    assert repr(next(iter(rs))).startswith("Row({'V': ")


def test_two_columns_of_one_name_are_both_there(app):
    rs = app.oBase.CV_GetRecordset("SELECT 1 AS A, 2 AS A")
    row = next(iter(rs))
    assert (row["A"], list(row)) == (1, ["A", "A"])


def test_record_sets_that_are_read_again_are_independent(app, rows):
    other = app.AKT_Find("Stichwort1='drei'", "Subject")
    other.MoveNext()
    assert (rows["Subject"], other["Subject"]) == ("Nr. 1", "Nr. 2")


def test_a_record_set_outlives_its_session(app, rows):
    app.Corvanta_Done()
    assert rows["Subject"] == "Nr. 1"
