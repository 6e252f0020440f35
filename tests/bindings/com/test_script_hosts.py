"""Hosts that are written in script: what they are asked, and what they get back."""

from pathlib import Path

HOST = (Path(__file__).parent / "script_host.vbs").read_text(encoding="utf-8")


def test_the_library_attaches_to_a_host_written_in_script(lines_of):
    assert lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
WScript.Echo app.Corvanta_InitType, app.Corvanta_Folder
WScript.Echo app.Corvanta_Application Is host
WScript.Echo app.oUtil Is host.Util, app.oBlob Is Nothing
app.Corvanta_Done
WScript.Echo app.Corvanta_InitType, app.Corvanta_Application Is Nothing
""") == ["1 C:\\Corvanta", "Wahr", "Wahr Wahr", "0 Wahr"]


def test_the_host_sees_the_exact_statements(lines_of):
    assert lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
app.AKT_Find "Erledigt = 0", "Datum"
app.AD_FindByDSN "ab'c"
app.oBase.Sql_Find "OBJ", "1=2"
app.oBase.Sql_SetField "AKT", "D1", "Bezug", "neu"
Dim statement
For Each statement In host.Statements
    WScript.Echo statement
Next
""") == [
        "SELECT * FROM AKT  WHERE Erledigt = 0 ORDER BY Datum",
        "SELECT * FROM AD  WHERE DSN = #ab'c#",
        "SELECT * FROM OBJ  WHERE 1=2",
        "SELECT * FROM AKT WHERE dsn=#D1# ",
        "Update Bezug=neu",
    ]


def test_a_record_set_of_the_host_comes_back_as_it_is(lines_of):
    assert lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
Dim rs: Set rs = app.AKT_Find("1=1")
WScript.Echo TypeName(rs.Fields.Item("Bezug").Value), rs Is host.LastRecordset
""") == ["String Wahr"]


def test_a_host_may_leave_another_record_set_in_the_callers_variable(lines_of):
    assert lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
Dim rs: Set rs = app.AKT_Find("1=1")
Dim other: Set other = New ScriptRecordset
Set host.Replacement = other
app.AKT_Update rs
WScript.Echo rs Is other
""") == ["Wahr"]


def test_values_from_the_host_are_read_and_written(lines_of):
    assert lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
WScript.Echo app.oBase.Sql_GetField("AKT", "D1", "Bezug")
WScript.Echo app.Corvanta_IsAdmin, app.Corvanta_DbVersion
""") == ["Wert von Bezug", "Wahr 2,5"]


def test_an_error_of_the_host_ends_the_operation(run_script):
    result = run_script(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
On Error Resume Next
app.AKT_Find "FEHLER"
WScript.Echo Err.Number
""", check=False)
    # Wine's engine tells the error to the program that runs the script, and the library only that
    # it has been told: SCRIPT_E_REPORTED.
    assert "error 0x800403E8|ScriptHost|Die Anweisung ist falsch" in result.errors
    assert result.lines == ["-2147352319"]


def test_an_object_without_the_members_is_error_438(lines_of):
    assert lines_of("""
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim fso: Set fso = CreateObject("Scripting.FileSystemObject")
On Error Resume Next
app.AKT_Delete fso
WScript.Echo Err.Number & "|" & Err.Description
""") == ["438|Objekt unterstützt diese Eigenschaft oder Methode nicht (EOF)"]
