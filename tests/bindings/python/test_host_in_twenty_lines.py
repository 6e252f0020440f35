"""A host of twenty lines is all that making an activity needs."""

import datetime

import cvdeveloper


class Rows:
    def __init__(self, **row):
        self.row, self.EOF, self.Fields = row, not row, self

    def AddNew(self):
        self.EOF = False

    def Item(self, name):
        self.Name = name.upper()
        return self

    Value = property(lambda rs: rs.row.get(rs.Name), lambda rs, v: rs.row.update({rs.Name: v}))


class Host:
    IsLoggedIn, Folder = True, "C:\\Corvanta"
    CurrentUserRS = Rows(RECHTESCHABLONEN="a|1\r\nb|2\r\nc|3\r\nd|S:1")

    def __init__(self):
        self.sent, self.Util, self.NewGUID = [], self, lambda: "KEY"
        self.k = self.SqlStrNull = lambda value: value or ""

    def GetRecordset(self, sql):
        self.sent.append(sql)
        return Rows(KENNUNG_AKT="A-17") if "FROM Std" in sql else Rows()

    def UpdateRecordset(self, rs):
        self.sent.append(rs.value.row)


def test_a_host_in_twenty_lines_sees_the_exact_statements_and_the_row(tmp_path):
    host = Host()
    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    app.Corvanta_SetApplication(host)
    assert app.Corvanta_InitType == cvdeveloper.INITTYPE_APPLICATION
    assert app.AKT_Create(strBetreff="Anruf", strAdDsn1="AD-1", dateDatum=45352.5) == "KEY"
    assert host.sent == [
        "SELECT * FROM AKT  WHERE 1=2",
        "SELECT Kennung_AKT FROM Std",
        {
            "DSN": "KEY",
            "KENNUNG": "A-17",
            "PRIORITÄT": 1,
            "FARCHIV": 0,
            "ART_DSN": "",
            "SUBJECT": "Anruf",
            "NOTIZ": "",
            "ERLEDIGT": 0,
            "DATUM": datetime.datetime(2024, 3, 1, 12),
            "DATUM_BIS": None,
            "VORLAGE": None,
            "ALARM": None,
            "LOESCHDATUM": None,
            "STICHWORT1": "",
            "STICHWORT2": "",
            "EMSK_DSN": "",
            "AD_DSN": "AD-1",
            "AD_B_DSN": "",
            "OBJ_DSN": "",
            "ANF_DSN": "",
            "PROJEKTE_DSN": "",
            "AKTEN_DSN": "",
            "VERTRÄGE_DSN": "",
            "DETAILS_DSN": "",
            "AKT_DSN": "",
            "ACL": "S:1",
        },
    ]
