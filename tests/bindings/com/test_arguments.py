"""Arguments as scripts hand them over."""


def test_optional_arguments_take_the_rows_defaults(lines_of):
    assert lines_of("""
Dim tools: Set tools = CreateObject("CVDeveloper.clsTools")
WScript.Echo tools.FormatNumber(1234.567)
WScript.Echo tools.FormatNumber(1234.567, , , , 0)
WScript.Echo tools.StrList_DeleteFirst("a|b")
WScript.Echo tools.StrList_DeleteFirst("a;b", ";")
""") == ["1.234,57", "1234,57", "a", "a"]


def test_variables_by_reference_are_changed(lines_of):
    assert lines_of("""
Dim tools: Set tools = CreateObject("CVDeveloper.clsTools")
Dim buffer: buffer = "a|b|c"
WScript.Echo tools.StrList_DeleteFirst(buffer), buffer
Dim list: Set list = CreateObject("CVDeveloper.clsPhoneList")
list.Add "eins", "zwei", "drei"
Dim one, two, three
list.GetItem 1, one, two, three
WScript.Echo one, two, three
""") == ["a b|c", "eins zwei drei"]


def test_a_failing_call_changes_no_variable(lines_of):
    assert lines_of("""
Dim app: Set app = CreateObject("CVDeveloper.Application")
Dim rs: rs = "unberührt"
On Error Resume Next
app.AKT_Update rs
WScript.Echo Err.Number, rs
""") == ["13 unberührt"]


def test_an_element_of_an_array_by_reference_is_changed(lines_of):
    assert lines_of("""
Dim tools: Set tools = CreateObject("CVDeveloper.clsTools")
Dim texts(1): texts(1) = "x|y"
tools.StrList_DeleteFirst texts(1)
WScript.Echo texts(1)
""") == ["y"]


def test_indexed_properties_are_written(lines_of):
    assert lines_of("""
Dim list: Set list = CreateObject("CVDeveloper.clsPhoneList")
list.Add "1", "2", "3"
list.Phone1(1) = "eins"
list.Phone2(1) = 17
list.PhoneComment("1") = Date - Date + 2.5
WScript.Echo list.Phone1(1), list.Phone2(1), list.PhoneComment(1)
""") == ["eins 17 2,5"]


def test_values_convert_to_the_declared_types(lines_of):
    assert lines_of("""
Dim tools: Set tools = CreateObject("CVDeveloper.clsTools")
WScript.Echo tools.FormatNumber("1234,5", "1")
WScript.Echo tools.FormatNumber(CCur("2,25")), tools.FormatNumber(CByte(7)), tools.FormatNumber(Empty)
WScript.Echo tools.FormatDateTime("15.11.2026", 2)
""") == ["1.234,5", "2,25 7,00 0,00", "15.11.2026"]
