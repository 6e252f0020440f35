"""The tables are what the library and the host rely on."""

import re

import pytest
from schema_files import FOLDER, MAIN, OWNER, columns, fold, tables

# What the library reads or writes, table by table.
LIBRARY = {
    "AKT": """DSN Kennung Priorität FArchiv Art_Dsn Subject Notiz Erledigt Datum Datum_Bis
        Vorlage Alarm Loeschdatum Stichwort1 Stichwort2 Emsk_Dsn AD_Dsn AD_B_Dsn OBJ_Dsn ANF_Dsn
        Projekte_Dsn Akten_Dsn Verträge_Dsn Details_Dsn Akt_Dsn ACL Km Betrag PeriodenArt
        PeriodenIntervall MailTo MailFrom cc bcc deferred_delivery_time delivery_state from_ben_dsn
        NEU_BEN_DSN ANGELEGT ÄN_BEN_DSN TOUCH STAMP""",
    "OBJ": """DSN Kennung Aktiv Priorität FARCHIV Intern EART EMSK_DSN AD_ANBIETER_DSN Auftragsende
        Notiz Abteilung ACL Datei Obj_DSN""",
    "AD": """DSN Kennung FArchiv BRIEFANREDE Firma Name Straße Land_Plz Ort Notiz AD_DSN ACL
        ANREDEKURZ ANREDE IDX_NAME TELEFON""",
    "ANF": "DSN Kennung Aktiv Priorität FArchiv AD_Dsn EMSK_Dsn Notiz EART Abteilung Manuell ACL",
    "AKTEN": "DSN Kennung FArchiv EMSK_Dsn Notiz Rubrum ACL",
    "Projekte": """DSN Kennung FArchiv Bezeichnung Notiz Stichwort Stichwort2 EMSK_Dsn Projekte_Dsn
        ACL""",
    "VERTRÄGE": """DSN Kennung Aktiv FArchiv Vertragsnummer Intern Notiz EMSK_Dsn AD_Nehmer_Dsn
        AD_Gesellschaft_Dsn AD_Vermittler_Dsn ACL""",
    "Details": "DSN Kennung FARCHIV Ad_Dsn EMSK_DSN Oberbegriff Notiz ACL",
    "Mkm": """DSN Aktiv Merkmal Sortierung Notiz Gruppe BackColor FontColor Benutzer Touch akt obj ad
        anf akten projekte verträge details""",
    "EMSK": """DSN Aktiv Name EArt Notiz Gruppen akt obj ad anf akten projekte verträge details""",
    "EmskDet": "DSN EMSK_DSN FLDART_DSN DEFAULT_ACL PFLICHTFELD BACKCOLOR FLDARTOP_FILTER",
    "FldArt": """DSN Aktiv Kürzel Typ Sortierung Plausibilität Format Notiz Intern Gruppen akt obj ad
        anf akten projekte verträge details""",
    "FldArtOp": "DSN FldArt_Dsn Bezeichnung Wert Kurz Defaultwert",
    "Aktivitätenarten": """DSN Aktiv Priorität Name Kurz Notiz default_views Vorlage Minuten Kosten km
        BackColor FontColor Ohne_Uhrzeit Kalender Quickakt Erledigt Adlos default_emsk_dsn PeriodenArt
        PeriodenIntervall""",
    "Std": """Kennung_AKT Kennung_AD Kennung_OBJ Kennung_Projekte Kennung_ANF Kennung_AKTEN
        Kennung_VERTRÄGE ANREDE TITEL MMDateiLang MMDateiKurz Währung""",
    "Benutzer": """DSN Login_Name AKTIV Chef Email FaxArt_Dsn ScanArt_Dsn Rechteschablonen STD_MKM1
        STD_MKM2 STD_MKM3 STD_MKM4 STD_MKM5 VOR_MKM1 VOR_MKM2 VOR_MKM3 VOR_MKM4 VOR_MKM5""",
    "Version": "Version",
    "Tapi": "Dsn Nummer Ad_Dsn",
    "postplz": "alort vorwahl",
    "postorte": "alort oname ozusatz",
    "Blob": "Dsn uidLINK_DSN lngTyp strsourcefilename mail_attachment",
    "AKTMKM": "DSN Link_DSN MKM_DSN",
    "OBJMKM": "DSN Link_DSN MKM_DSN",
    "ADMKM": "DSN Link_DSN MKM_DSN",
    "ANFMKM": "DSN Link_DSN MKM_DSN",
    "AKTENMKM": "DSN Link_DSN MKM_DSN",
    "PROJEKTEMKM": "DSN Link_DSN MKM_DSN",
    "VERTRÄGEMKM": "DSN Link_DSN MKM_DSN",
    "DETAILSMKM": "DSN Link_DSN MKM_DSN",
}
DETAIL = """DSN FldArt_DSN Eingabe Von_Num Bis_Num von_str bis_str FldArtOp_Dsn ACL Link_DSN STAMP"""
LIBRARY |= {
    "AKTDET": DETAIL + " Akt_DSN",
    "OBJDET": DETAIL + " Obj_DSN",
    "ADDET": DETAIL + " AD_DSN",
    "ANFDET": DETAIL + " ANF_DSN",
    "AKTENDET": DETAIL + " AKTEN_DSN",
    "PROJEKTEDET": DETAIL + " Projekte_DSN",
    "VERTRÄGEDET": DETAIL + " Verträge_DSN",
    "DETAILSDET": DETAIL + " Details_DSN",
}

# The longest text that the library writes into a column.
WIDTHS = {
    ("AKT", "Subject"): 256, ("AKT", "Stichwort1"): 50, ("AKT", "Stichwort2"): 50,
    ("OBJ", "Intern"): 254,
    ("AD", "BRIEFANREDE"): 200, ("AD", "Firma"): 254, ("AD", "NAME"): 100, ("AD", "Straße"): 254,
    ("AD", "Land_Plz"): 50, ("AD", "Ort"): 30,
    ("ANF", "Manuell"): 255, ("AKTEN", "Rubrum"): 50,
    ("Projekte", "Bezeichnung"): 50, ("Projekte", "Stichwort"): 100, ("Projekte", "Stichwort2"): 100,
    ("VERTRÄGE", "Vertragsnummer"): 50, ("VERTRÄGE", "Intern"): 40, ("Details", "Oberbegriff"): 50,
    ("Mkm", "Merkmal"): 20, ("Mkm", "Sortierung"): 10, ("Mkm", "Gruppe"): 254,
    ("EMSK", "Name"): 50, ("EMSK", "Gruppen"): 1000, ("EmskDet", "FLDARTOP_FILTER"): 250,
    ("FldArt", "Kürzel"): 25, ("FldArt", "Sortierung"): 10, ("FldArt", "Plausibilität"): 40,
    ("FldArt", "Format"): 50, ("FldArt", "Intern"): 254, ("FldArt", "Gruppen"): 1000,
    ("FldArtOp", "Bezeichnung"): 250, ("FldArtOp", "Wert"): 30, ("FldArtOp", "Kurz"): 7,
    ("Aktivitätenarten", "Name"): 50, ("Aktivitätenarten", "Kurz"): 5,
    ("Aktivitätenarten", "default_views"): 50,
    **{(main.upper() + "DET", "Eingabe"): 100 for main in MAIN},
}
UNLIMITED = [
    ("AKT", "Notiz"), ("AKT", "MailTo"), ("AKT", "MailFrom"), ("AKT", "cc"), ("AKT", "bcc"),
    ("OBJ", "Notiz"), ("AD", "Notiz"), ("AD", "TELEFON"), ("ANF", "Notiz"), ("AKTEN", "Notiz"),
    ("Projekte", "Notiz"), ("VERTRÄGE", "Notiz"), ("Details", "Notiz"), ("Mkm", "Notiz"),
    ("EMSK", "Notiz"), ("FldArt", "Notiz"), ("Aktivitätenarten", "Notiz"), ("Std", "ANREDE"),
    ("Std", "TITEL"), ("Benutzer", "Rechteschablonen"),
]  # fmt: skip


@pytest.mark.parametrize("table", LIBRARY)
def test_what_the_library_reads_or_writes_exists(base, table):
    have = {fold(c["name"]) for c in columns(base, table)}
    assert have, f"no table {table}"
    assert {fold(name) for name in LIBRARY[table].split()} <= have


def test_columns_with_umlauts_are_spelled_one_way(base):
    """The database folds the case of ASCII letters only."""
    spellings = {}
    for table in tables(base):
        for column in columns(base, table):
            spellings.setdefault(fold(column["name"]), set()).add(column["name"])
    assert not [names for name, names in spellings.items() if len(names) > 1 and not name.isascii()]


def test_texts_that_the_library_writes_fit_their_columns(base):
    types = {(t, c["name"]): c["type"] for t in tables(base) for c in columns(base, t)}
    for place, width in WIDTHS.items():
        assert int(re.search(r"\d+", types[place]).group()) >= width, place
    for place in UNLIMITED:
        assert types[place] == "LONGTEXT", place


def test_declared_types_are_those_the_host_reads(base):
    known = r"CHAR\(\d+\)|VARCHAR\(\d+\)|LONGTEXT|LONGBLOB|SMALLINT|INTEGER|DOUBLE|DATETIME"
    for table in tables(base):
        for column in columns(base, table):
            assert re.fullmatch(known, column["type"]), (table, column["name"])


def test_every_text_compares_as_users_expect(base):
    text = (FOLDER / "schema.sql").read_text("utf-8")
    for line in text.splitlines():
        column = re.match(r"    (\w+) +(CHAR|VARCHAR|LONGTEXT)", line)
        if column and column.group(1) != "hash":
            assert "COLLATE CVTEXT" in line, line


def test_every_record_has_a_key_and_a_version(base):
    for table in tables(base):
        if table == "Version" or table.startswith("cv_"):
            continue
        key, stamp = columns(base, table)[:2]
        assert tuple(key)[1:] == ("DSN", "CHAR(36)", 1, None, 1), table
        assert tuple(stamp)[1:] == ("STAMP", "INTEGER", 1, "0", 0), table
        assert not [c["name"] for c in columns(base, table)[2:] if c["notnull"]], table


def test_nothing_is_unique_but_the_key_and_nothing_is_foreign(base):
    for table in tables(base):
        assert not base.execute(f"PRAGMA foreign_key_list({table})").fetchall(), table
        unique = [i for i in base.execute(f"PRAGMA index_list({table})") if i["unique"]]
        assert [i["origin"] for i in unique] == ([] if table == "Version" else ["pk"]), table


def test_no_two_names_differ_by_umlauts_or_case_alone(base):
    def spelt_out(name):
        umlauts = {"Ä": "AE", "Ö": "OE", "Ü": "UE", "ß": "SS"}
        return "".join(umlauts.get(c, c) for c in fold(name))

    assert len({spelt_out(t) for t in tables(base)}) == len(tables(base))
    for table in tables(base):
        names = [c["name"] for c in columns(base, table)]
        assert len({spelt_out(n) for n in names}) == len(names), table


def test_rows_fit_the_widest_row_of_a_server_database(base):
    for table in tables(base):
        bytes_needed = 0
        for column in columns(base, table):
            size = re.search(r"\((\d+)\)", column["type"])
            bytes_needed += 4 * int(size.group(1)) + 2 if size else 12
        assert bytes_needed < 65535, table


@pytest.mark.parametrize(
    "statement",
    [
        *[f"SELECT * FROM {t} WHERE DSN = ?" for t in MAIN],
        *[f"SELECT Dsn FROM {t} WHERE Kennung = ? ORDER BY DSN" for t in MAIN],
        *[f"SELECT * FROM {t.upper()}MKM WHERE (link_dsn=?) AND (mkm_dsn=?)" for t in MAIN],
        *[
            f"SELECT {t.upper()}DET.* FROM {t} INNER JOIN {t.upper()}DET"
            f" ON {t}.dsn = {t.upper()}DET.{OWNER[t]}"
            f" WHERE ({t}.DSN=?) AND ({t.upper()}DET.FLDART_DSN=?) ORDER BY {t.upper()}DET.DSN"
            for t in MAIN
        ],
        *[f"SELECT * FROM {t} WHERE {t}_Dsn = ?" for t in ("AKT", "OBJ", "AD", "Projekte")],
        *[
            f"SELECT * FROM AKT WHERE {c} = ?"
            for c in "AD_Dsn AD_B_Dsn OBJ_Dsn ANF_Dsn Projekte_Dsn Akten_Dsn Details_Dsn".split()
        ],
        "SELECT * FROM AKT WHERE Verträge_Dsn = ?",
        "SELECT * FROM Mkm WHERE Benutzer=? ORDER BY Touch",
        "SELECT Dsn FROM Mkm WHERE Merkmal = ? ORDER BY DSN",
        "SELECT Dsn FROM FldArt WHERE Kürzel = ? ORDER BY DSN",
        "SELECT Dsn FROM FldArtOp WHERE FldArt_Dsn = ? AND Bezeichnung = ? ORDER BY DSN",
        "SELECT Dsn FROM EMSK WHERE Name = ? ORDER BY DSN",
        "SELECT * FROM EmskDet WHERE Emsk_Dsn = ? AND FldArt_Dsn = ?",
        "SELECT Dsn FROM Aktivitätenarten WHERE Name = ? ORDER BY DSN",
        "SELECT Dsn FROM Projekte WHERE Bezeichnung = ? ORDER BY DSN",
        "SELECT * FROM Details WHERE Oberbegriff = ? ORDER BY DSN",
        "SELECT Dsn FROM Details WHERE Ad_Dsn=? AND emsk_Dsn=? ORDER BY DSN",
        "SELECT Ad_Dsn FROM Tapi WHERE Nummer = ? ORDER BY Dsn",
        "SELECT * FROM Blob WHERE uidLINK_DSN = ?",
        "SELECT * FROM Benutzer WHERE Login_Name = ?",
    ],
)
def test_look_ups_go_through_an_index(base, statement):
    plan = base.execute("EXPLAIN QUERY PLAN " + statement, ["x"] * statement.count("?")).fetchall()
    assert not [step["detail"] for step in plan if step["detail"].startswith("SCAN")]
