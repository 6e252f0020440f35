"""A working day on the stand-alone host, from a script, with no host program."""

from wine_prefix import ROOT

EXAMPLE = ROOT / "examples" / "windows" / "arbeitstag.vbs"
CONNECT = """
Dim app: Set app = CreateObject("CVDeveloper.Application")
app.Corvanta_InitConnector WScript.Arguments(0), "chef", ""
"""


def test_the_example_goes_through_a_working_day(prefix, office):
    result = prefix.program("script_host", EXAMPLE, office)
    assert (result.code, result.errors) == (0, "")
    assert "  16.06.2026 10:00:00  Besichtigung Kirchplatz 2" in result.lines
    assert "  O-100001: Lindenweg 12" in result.lines
    assert "    Wohnfläche           148,5" in result.lines
    assert any(line.endswith(" am 23.11.2026 10:00:00") and ": Rückfrage mit " in line
               for line in result.lines)
    assert ("  O-100001    Lindenweg 12                             5       148,5"
            "      485.000,00") in result.lines


def test_a_record_is_written_and_read_again(run_script, office):
    assert run_script(CONNECT + """
Dim dsn: dsn = app.AKT_Create("", "Größe prüfen")
Dim rs: Set rs = app.AKT_FindByDSN(dsn)
rs("Subject") = rs("Subject") & "!"
app.AKT_Update rs
WScript.Echo app.AKT_FindByDSN(dsn)("Subject")
WScript.Echo app.AKT_Find("DSN=" & app.oUtil.SqlUid(dsn)).RecordCount
Dim field, count
For Each field In rs.Fields
    count = count + 1
Next
WScript.Echo count = rs.Fields.Count
app.AKT_Delete app.AKT_FindByDSN(dsn)
WScript.Echo app.AKT_FindByDSN(dsn).EOF
""", office).lines == [
        "Größe prüfen!", "1", "Wahr", "Wahr"]


def test_the_hosts_error_arrives_with_number_source_and_text(run_script, office):
    assert run_script(CONNECT + """
On Error Resume Next
app.oBase.CV_GetRecordset "SELECT Unsinn FROM AKT"
WScript.Echo Err.Number & "|" & Err.Source & "|" & Err.Description
""", office).lines == [
        "-2147217900|CVConnector|Die Datenbank lehnt ab: no such column: Unsinn. "
        "Anweisung: SELECT Unsinn FROM AKT"]


def test_a_null_value_stays_null_and_the_util_takes_fields(run_script, office):
    assert run_script(CONNECT + """
Dim rs: Set rs = app.AD_Find("Firma IS NULL", "Kennung LIMIT 1")
WScript.Echo IsNull(rs("Firma").Value), "[" & app.oUtil.k(rs("Firma")) & "]"
""", office).lines == ["Wahr []"]


def test_the_standard_components_are_made_by_their_names(run_script, office):
    assert run_script(CONNECT + """
Dim holidays: Set holidays = CreateObject("clqexstdc10.cLegalHolidays")
holidays.Eintragen 2026
WScript.Echo holidays.Day(1), holidays.Description(1)
WScript.Echo "[" & app.oTools.IsFeiertag(DateSerial(2026, 12, 25)) & "]"
""", office).lines == ["01.01.2026 Neujahr", "[]"]
