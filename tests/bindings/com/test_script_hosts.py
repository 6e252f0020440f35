"""Hosts that are written in script: what they are asked, and what they get back."""

HOST = (__import__("pathlib").Path(__file__).parent / "script_host.vbs").read_text(encoding="utf-8")


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
        "SELECT * FROM Akt WHERE Erledigt = 0 ORDER BY Datum",
        "SELECT * FROM AD WHERE DSN=#ab'c#",
        "SELECT * FROM OBJ WHERE 1=2",
        "SELECT * FROM AKT WHERE DSN=#D1#",
        "Update Bezug=neu",
    ]


def test_a_record_set_of_the_host_comes_back_as_it_is(lines_of):
    assert lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
Dim rs: Set rs = app.AKT_Find("1=1")
WScript.Echo TypeName(rs), rs Is host.LastRecordset
""") == ["ScriptRecordset Wahr"]


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


def test_an_error_of_the_host_reaches_the_caller_unchanged(lines_of):
    number, _, text = lines_of(HOST + """
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim host: Set host = New ScriptHost
app.Corvanta_SetApplication host
On Error Resume Next
app.AKT_Find "FEHLER"
WScript.Echo Err.Number & "|" & Err.Source & "|" & Err.Description
""")[0].split("|")
    assert int(number) == -2147220504
    assert text in ("", "Die Anweisung ist falsch")  # Wine's engine tells no text of such errors


def test_the_systems_file_object_is_called_late(lines_of, tmp_path):
    folder = f"Z:{tmp_path}".replace("/", "\\")
    assert lines_of("""
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim fso: Set fso = CreateObject("Scripting.FileSystemObject")
On Error Resume Next
app.AKT_Delete fso
WScript.Echo Err.Number
""", folder) == ["601"]
