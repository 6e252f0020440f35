"""Of a record set the library uses EOF, MoveFirst, MoveNext, AddNew, Delete and Fields, of these
Count and Item, of a field Name, Value, Type and GetChunk, and no other member."""

import pytest
from doubles import RecordSet

import cvdeveloper


class Strict:
    """Counts what it is asked for, and fails for anything that is not its protocol's."""

    members = ()

    def __init__(self, record_set):
        object.__setattr__(self, "rs", record_set)

    def __getattribute__(self, name):
        if name.startswith("__") or name in ("rs", "read"):
            return object.__getattribute__(self, name)
        assert name in type(self).members, f"{type(self).__name__}.{name}"
        self.rs.asked.add(f"{type(self).__name__}.{name}")
        return object.__getattribute__(self, "read")(name)

    def __setattr__(self, name, value):
        assert name == "Value", f"{type(self).__name__}.{name} = ..."
        self.rs.asked.add("StrictField.Value")
        self.rs.inner.row[self.rs.column] = value

    def __dir__(self):
        raise AssertionError("names are looked for")


class StrictField(Strict):
    members = ("Name", "Value", "Type", "GetChunk")

    def read(self, name):
        inner, column = self.rs.inner, self.rs.column
        if name == "GetChunk":
            pieces = self.rs.pieces
            return lambda size: pieces.pop(0) if pieces else None
        return {"Name": column, "Value": inner.row.get(column), "Type": 201}[name]


class StrictFields(Strict):
    members = ("Count", "Item")

    def read(self, name):
        if name == "Count":
            return len(self.rs.inner.columns)

        def item(key):
            columns = self.rs.inner.columns
            self.rs.column = columns[key] if isinstance(key, int) else key.upper()
            return StrictField(self.rs)

        return item


class StrictRecordSet(Strict):
    members = ("EOF", "MoveFirst", "MoveNext", "AddNew", "Delete", "Fields")

    def __init__(self, *rows):
        state = type("State", (), {})()
        state.inner, state.asked, state.column, state.pieces = RecordSet(*rows), set(), None, []
        super().__init__(state)

    def read(self, name):
        return StrictFields(self.rs) if name == "Fields" else getattr(self.rs.inner, name)


def test_making_an_activity_asks_for_nothing_else(attached, host, tmp_path):
    answers = {"SELECT * FROM AKT  WHERE 1=2": StrictRecordSet()}
    answers["SELECT Kennung_AKT FROM Std"] = StrictRecordSet({"KENNUNG_AKT": "A-1"})
    host.GetRecordset = lambda sql: answers.setdefault(sql, StrictRecordSet())
    host.user["STD_MKM1"] = "M1"
    assert attached.AKT_Create(strBetreff="Anruf") == "G1"
    made = answers["SELECT * FROM AKT  WHERE 1=2"].rs
    assert made.inner.rows[0]["SUBJECT"] == "Anruf"
    assert made.asked == {
        "StrictRecordSet.EOF",
        "StrictRecordSet.AddNew",
        "StrictRecordSet.Fields",
        "StrictFields.Item",
        "StrictField.Value",
    }


def test_the_statement_log_asks_for_names_values_and_their_number(attached, host, log_lines):
    rows = StrictRecordSet({"DSN": "K", "NOTIZ": None})
    attached.FlagSqlLog = True
    attached.oBase.CV_UpdateRecordset(rows)
    assert log_lines() == ["UpdateRecordset :", "DSN = K"]
    assert rows.rs.asked == {
        "StrictRecordSet.Fields",
        "StrictFields.Count",
        "StrictFields.Item",
        "StrictField.Name",
        "StrictField.Value",
    }


def test_deleting_all_rows_asks_for_moves_and_delete(attached, host):
    rows = StrictRecordSet({"DSN": "A"}, {"DSN": "B"})
    assert attached.oBase.SQL_DeleteAll(rows) is True
    assert rows.rs.asked <= {
        "StrictRecordSet.EOF",
        "StrictRecordSet.MoveFirst",
        "StrictRecordSet.MoveNext",
        "StrictRecordSet.Delete",
    }
    assert "StrictRecordSet.Delete" in rows.rs.asked


def test_copying_fields_asks_for_names_and_values(attached):
    source = StrictRecordSet({"DSN": "A", "NAME": "Meier"})
    target = StrictRecordSet({"DSN": "B", "NAME": None})
    attached.oBase.Sql_CopyFields(source, target)
    assert target.rs.inner.row == {"DSN": "B", "NAME": "Meier"}


def test_a_long_value_is_read_in_pieces(attached, tmp_path):
    rows = StrictRecordSet({"NOTIZ": "abcdef"})
    rows.rs.pieces = ["abcdef"]
    field = rows.Fields.Item("NOTIZ")
    path = tmp_path / "notiz.txt"
    assert attached.oBase.FieldToFile(field, str(path)) is True
    assert path.read_text(encoding="utf-8") == "abcdef"
    assert "StrictField.GetChunk" in rows.rs.asked


@pytest.mark.parametrize("missing", ["EOF", "Fields"])
def test_a_record_set_without_a_member_of_the_protocol_is_error_438(attached, host, missing):
    class Half:
        EOF = False

    class OtherHalf:
        Fields = None

    rows = Half() if missing == "Fields" else OtherHalf()
    host.GetRecordset = lambda sql: rows
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.oBase.Sql_GetField("AKT", "K", "Subject")
    assert caught.value.number == 438
    assert f".{missing})" in caught.value.description


def test_names_without_regard_to_case_are_the_record_sets_business(attached, host):
    asked = []

    class Fields:
        def Item(self, name):
            asked.append(name)
            return type("Field", (), {"Value": "Meier"})()

    rows = type("Rows", (), {"EOF": False, "Fields": Fields()})()
    host.GetRecordset = lambda sql: rows
    assert attached.oBase.Sql_GetField("AKT", "K", "sUbJeCt") == "Meier"
    assert asked == ["sUbJeCt"]
