"""Every class, made and used by a script."""


def test_application_gives_its_workers_and_its_settings(lines_of):
    assert lines_of("""
Dim app: Set app = CreateObject("CVDeveloper.Application")
WScript.Echo app.GetVersion()
WScript.Echo app.Corvanta_InitType
WScript.Echo app.Corvanta_Application Is Nothing
WScript.Echo app.FlagSqlLog
app.FlagSqlLog = True
app.LogPath = "C:\\büro"
WScript.Echo app.FlagSqlLog, app.LogPath
WScript.Echo app.oBase Is app.oBase, app.oTools Is app.oTools
WScript.Echo app.oFileSystem Is app.oFileSystem
app.Corvanta_Done
""") == ["0.9.30", "0", "Wahr", "Falsch", "Wahr C:\\büro", "Wahr Wahr", "Wahr"]


def test_base_asks_for_a_session(lines_of):
    assert lines_of("""
Dim base: Set base = CreateObject("CVDeveloper.clsBase")
On Error Resume Next
base.Sql_Find "AKT", "1=2"
WScript.Echo Err.Number, Err.Description
""") == ["601 CVDeveloper wurde nicht initialisiert"]


def test_tools_format_as_the_system_does(lines_of):
    assert lines_of("""
Dim tools: Set tools = CreateObject("CVDeveloper.clsTools")
WScript.Echo tools.FormatNumber(1234.5)
WScript.Echo tools.FormatNumber(-0.5, 1)
WScript.Echo tools.FormatPercent(0.1234)
WScript.Echo tools.FormatDateTime(DateSerial(2026, 11, 15), 2)
""") == ["1.234,50", "-0,5", "12,34%", "15.11.2026"]


def test_salutation_list_keeps_its_entries(lines_of):
    assert lines_of("""
Dim list: Set list = CreateObject("CVDeveloper.clsSalutationList")
list.Add "Herr", "Herrn", "Sehr geehrter Herr"
list.Add "Frau", "Frau", "Sehr geehrte Frau"
WScript.Echo list.Count, TypeName(list.Count)
WScript.Echo list.SalutationLong(1), list.SalutationLetter(2)
""") == ["2 Integer", "Herrn Sehr geehrte Frau"]


def test_phone_list_keeps_its_entries(lines_of):
    assert lines_of("""
Dim list: Set list = CreateObject("CVDeveloper.clsPhoneList.1")
list.AsString = "0201 1" & vbTab & vbTab & "Büro"
list.Phone2(1) = "0171 2"
WScript.Echo Replace(list.AsString, vbTab, "/")
list.Clear
WScript.Echo list.Count
""") == ["0201 1/0171 2/Büro", "0"]


def test_file_system_writes_lists_and_deletes(lines_of, tmp_path):
    folder = f"Z:{tmp_path}".replace("/", "\\")
    assert lines_of("""
Dim files: Set files = CreateObject("CVDeveloper.clsFileSystem")
Dim folder: folder = WScript.Arguments(0) & "\\ordner"
files.CreateFolder folder
Dim stream: Set stream = files.CreateTextFile(folder & "\\a.txt")
stream.WriteLine "Straße"
stream.Close
files.AppendFile folder & "\\b.txt", "zwei"
files.CopyFile folder & "\\a.txt", folder & "\\c.txt"
Dim found: Set found = CreateObject("Scripting.FileSystemObject").GetFolder(folder).Files
WScript.Echo found.Count
files.DeleteFile folder & "\\c.txt"
WScript.Echo files.FileExists(folder & "\\a.txt"), files.FileExists(folder & "\\c.txt")
Dim made: Set made = files.CreateFolder(folder & "\\innen")
WScript.Echo made.Name, made.ParentFolder.Files.Count
WScript.Echo made.ParentFolder.Files("b.txt").Name
Dim file
For Each file In made.ParentFolder.Files
    WScript.Echo file.Name
Next
""", folder) == ["3", "Wahr Falsch", "innen 2", "b.txt", "a.txt", "b.txt"]


def test_another_language_binds_the_same_objects(run_script):
    assert run_script("""
var list = new ActiveXObject("CVDeveloper.clsPhoneList");
list.Add("1", "2", "3");
list.Phone1(1) = "neu";
WScript.Echo(list.Phone1(1) + list.Count);
""", ending="js").lines == ["neu1"]
