"""Errors as scripts see them: number, source, description."""


def error_of(lines_of, statements: str) -> str:
    return lines_of(f"""
On Error Resume Next
{statements}
WScript.Echo Err.Number & "|" & Err.Source & "|" & Err.Description
""")[0]


def test_no_session_is_error_601(lines_of):
    assert error_of(lines_of, """
Dim app: Set app = CreateObject("CVDeveloper.Application")
app.AKT_Create "", "Anruf"
""") == "601||CVDeveloper wurde nicht initialisiert"


def test_changing_a_salutation_is_error_424(lines_of):
    assert error_of(lines_of, """
Dim list: Set list = CreateObject("CVDeveloper.clsSalutationList")
list.Add "Herr", "Herrn", "Sehr geehrter Herr"
list.SalutationLong(1) = "x"
""") == "424||Objekt erforderlich (SetItem)"


def test_an_index_in_use_is_error_457(lines_of):
    assert error_of(lines_of, """
Dim list: Set list = CreateObject("CVDeveloper.clsPhoneList")
list.Add "1", "", ""
list.Add "2", "", ""
list.Remove 1
list.Add "3", "", ""
""") == "457||Schlüssel ist bereits zugeordnet (Index 2)"


def test_no_field_kind_is_the_object_error_base(lines_of):
    assert error_of(lines_of, """
Dim base: Set base = CreateObject("CVDeveloper.clsBase")
base.Sql_CrossTable "AD", "", "", ""
""") == "-2147221504||Keine Feldart in strDetailPipeList angegeben"


def test_an_unknown_member_is_error_438(lines_of):
    assert error_of(lines_of, """
CreateObject("CVDeveloper.Application").AKT_Creat
""").startswith("438|")


def test_an_untrapped_error_ends_the_script_with_its_line(run_script):
    result = run_script("""Dim app
Set app = CreateObject("CVDeveloper.Application")
app.AKT_Find "1=1"
WScript.Echo "nicht erreicht"
""", check=False)
    assert result.code == 1
    assert result.lines == []
    assert result.errors == "line 3: error 0x800A0259||CVDeveloper wurde nicht initialisiert\n"
