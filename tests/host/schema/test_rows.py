"""The rows that come with the schema agree with it and with each other."""

import datetime
import re

import pytest
from schema_files import EPOCH, FOLDER, MAIN, OWNER, columns, fold, read_csv, rows, tables

# Which table a key column points to, by the end of its name.
TARGETS = [
    ("_BEN_DSN", "Benutzer"), ("BENUTZER_DSN", "Benutzer"), ("BEN_DSN", "Benutzer"),
    ("FAXART_DSN", "Aktivitätenarten"), ("SCANART_DSN", "Aktivitätenarten"),
    ("FLDART_DSN", "FldArt"), ("FLDARTOP_DSN", "FldArtOp"), ("ART_DSN", "Aktivitätenarten"),
    ("EMSK_DSN", "EMSK"), ("MKM_DSN", "Mkm"), ("AKT_DSN", "AKT"), ("OBJ_DSN", "OBJ"),
    ("ANF_DSN", "ANF"), ("AKTEN_DSN", "AKTEN"), ("PROJEKTE_DSN", "Projekte"),
    ("VERTRÄGE_DSN", "VERTRÄGE"), ("DETAILS_DSN", "Details"),
]  # fmt: skip


def target(table, column):
    """Table that a key column points to."""
    name = fold(column)
    if re.match(r"(STD|VOR)_MKM\d$", name):
        return "Mkm"
    if name == "LINK_DSN":  # a feature link names the record, a detail value an address
        return next(m for m in MAIN if m.upper() + "MKM" == table) if table.endswith("MKM") else "AD"
    if name == "AD_DSN" or re.match(r"AD_\w+_DSN$", name):
        return "AD"
    return next((to for end, to in TARGETS if name.endswith(end)), None)


# The rows of every new database


def test_a_new_database_has_its_version_master_data_and_first_user(base):
    (version,) = rows(base, "Version")
    assert version["Version"] == int(
        re.search(r"schema_version = (\d+);", (FOLDER.parent / "folder" / "host_folder.h").read_text())[1]
    )
    (std,) = rows(base, "Std")
    assert std["ANREDE"].split("\r\n")[0] == "Frau\tFrau\tSehr geehrte Frau {NACHNAME}"
    (chef,) = rows(base, "Benutzer")
    assert (chef["Login_Name"], chef["AKTIV"], chef["Chef"]) == ("chef", 1, 1)
    templates = chef["Rechteschablonen"].split("\r\n")
    assert len(templates) == 4
    assert templates[3].split("|", 1)[1]


def test_every_number_of_the_master_data_has_its_counter(base):
    asked_for = {c["name"] for c in columns(base, "Std") if c["name"].startswith("Kennung_")}
    assert {r["name"] for r in rows(base, "cv_counter")} == asked_for


# The sample


def test_every_key_has_the_fixed_form(sample):
    for table in tables(sample):
        if "DSN" in [c["name"] for c in columns(sample, table)]:
            for row in rows(sample, table):
                assert re.fullmatch(r"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}", row["DSN"]), table


@pytest.mark.parametrize(
    "path", sorted(FOLDER.glob("*/*.csv")), ids=lambda p: f"{p.parent.name}/{p.stem}"
)
def test_no_key_stands_twice_in_a_file_and_lines_in_texts_end_with_cr_lf(path):
    _, loaded = read_csv(path)
    keys = [row["DSN"] for row in loaded if "DSN" in row]
    assert len(set(keys)) == len(keys)
    for row in loaded:
        for value in row.values():
            assert value is None or "\n" not in value.replace("\r\n", ""), row


def test_every_link_of_the_sample_points_to_a_row(sample):
    keyed = [t for t in tables(sample) if columns(sample, t)[0]["name"] == "DSN"]
    keys = {t: {r["DSN"] for r in rows(sample, t)} for t in keyed}
    for table in tables(sample):
        for column in columns(sample, table):
            name = column["name"]
            if column["type"] != "CHAR(36)" or name == "DSN":
                continue
            if name == "uidLINK_DSN":
                known = set().union(*(keys[m] for m in MAIN))
            else:
                assert target(table, name), f"{table}.{name} points nowhere"
                known = keys[target(table, name)]
            for row in rows(sample, table):
                assert row[name] is None or row[name] in known, f"{table}.{name}: {row[name]}"


def test_phone_lists_and_the_phone_index_agree(sample):
    expected = []
    for row in rows(sample, "AD"):
        for item in (row["TELEFON"] or "").split("\r\n"):
            if item:
                first, second, _ = item.split("\t")
                expected += [(number, row["DSN"]) for number in (first, second) if number]
        expected += [(m, row["DSN"]) for m in (row["EMail"], row["EMail2"]) if m]
    assert sorted(expected) == sorted((r["Nummer"], r["Ad_Dsn"]) for r in rows(sample, "Tapi"))


def german(text):
    return float(text.replace(".", "").replace(",", "."))


def day(text):
    return (datetime.datetime.strptime(text, "%d.%m.%Y") - EPOCH).days


def bounds(text, read):
    low, _, high = text.partition(" - ")
    return read(low), read(high or low)


@pytest.mark.parametrize("main", MAIN)
def test_detail_values_agree_with_their_field_kind(sample, main):
    kinds = {r["DSN"]: r for r in rows(sample, "FldArt")}
    options = {r["DSN"]: r for r in rows(sample, "FldArtOp")}
    addresses = {r["DSN"]: r for r in rows(sample, "AD")}
    for row in rows(sample, main.upper() + "DET"):
        kind = kinds[row["FldArt_DSN"]]
        entry, numbers = row["Eingabe"], (row["Von_Num"], row["Bis_Num"])
        assert kind[main.lower()] == 1, f"{kind['Kürzel']} is not offered for {main}"
        assert (row["FldArtOp_Dsn"] is not None) == (kind["Typ"] == 0)
        assert (row["Link_DSN"] is not None) == (kind["Typ"] == 7)
        assert (row["von_str"] is not None) == (kind["Typ"] in (3, 6))
        if kind["Typ"] == 0:
            option = options[row["FldArtOp_Dsn"]]
            assert option["FldArt_Dsn"] == kind["DSN"] and option["Bezeichnung"] == entry
        elif kind["Typ"] in (1, 2):
            assert numbers == bounds(entry, german)
        elif kind["Typ"] == 3:
            assert row["von_str"] == row["bis_str"] == entry
        elif kind["Typ"] == 4:
            assert numbers == ((1, 1) if entry == "Ja" else (0, 0)) and entry in ("Ja", "Nein")
        elif kind["Typ"] == 5:
            assert numbers == bounds(entry, day)
        elif kind["Typ"] == 6:
            assert (row["von_str"], row["bis_str"]) == bounds(entry, str)
        else:
            address = addresses[row["Link_DSN"]]
            assert entry in (address["NAME"], address["Firma"])
        if kind["Typ"] not in (1, 2, 4, 5):
            assert numbers == (0, 0)
        assert numbers[0] <= numbers[1]


@pytest.mark.parametrize("main", MAIN)
def test_a_record_shows_only_details_of_its_entry_mask(sample, main):
    shown = {(r["EMSK_DSN"], r["FLDART_DSN"]) for r in rows(sample, "EmskDet")}
    masks = {r["DSN"]: r for r in rows(sample, "EMSK")}
    mask_of = {r["DSN"]: r["EMSK_DSN"] for r in rows(sample, main)}
    for mask in filter(None, mask_of.values()):
        assert masks[mask][main.lower()] == 1, f"{masks[mask]['Name']} is not offered for {main}"
    for row in rows(sample, main.upper() + "DET"):
        assert (mask_of[row[OWNER[main]]], row["FldArt_DSN"]) in shown, row["DSN"]


@pytest.mark.parametrize("main", MAIN)
def test_features_are_linked_only_to_tables_they_are_offered_for(sample, main):
    offered = {r["DSN"]: r for r in rows(sample, "Mkm")}
    for row in rows(sample, main.upper() + "MKM"):
        assert offered[row["MKM_DSN"]][main.lower()] == 1, offered[row["MKM_DSN"]]["Merkmal"]


def test_field_kinds_of_every_type_are_in_use(sample):
    assert {r["Typ"] for r in rows(sample, "FldArt")} == set(range(8))


def test_human_keys_are_given_out_once_and_the_counters_know_the_last(sample):
    last = {r["name"]: (r["prefix"], r["last_number"]) for r in rows(sample, "cv_counter")}
    for main in MAIN[:-1]:
        prefix, number = last["Kennung_" + main]
        taken = [r["Kennung"] for r in rows(sample, main)]
        assert len(set(taken)) == len(taken)
        assert max(taken) == f"{prefix}{number}", main


def test_names_hold_the_family_name_at_their_end_and_no_marker(sample):
    for row in rows(sample, "AD"):
        assert (row["NAME"] or "").endswith(row["IDX_NAME"] or ""), row["NAME"]
        assert "#" not in (row["NAME"] or "")


def test_the_template_project_is_a_tree_of_activities(sample):
    steps = sample.execute(
        "SELECT AKT.* FROM AKT INNER JOIN Projekte ON AKT.Projekte_Dsn = Projekte.DSN"
        " WHERE Projekte.Bezeichnung = 'Vorlage Verkauf'"
    ).fetchall()
    keys = {r["DSN"] for r in steps}
    assert len(steps) == 12
    assert [r["Akt_Dsn"] for r in steps].count(None) == 1
    assert all(r["Akt_Dsn"] is None or r["Akt_Dsn"] in keys for r in steps)
    assert all(r["Datum"] and not r["Erledigt"] for r in steps)


def test_only_links_are_attached(sample):
    assert {r["lngTyp"] for r in rows(sample, "Blob")} == {7}


def test_countries_are_listed_by_name(sample):
    # RIGHT is a word of SQLite's own grammar; as a function's name it has to stand in quotes.
    listed = sample.execute(
        'SELECT "RIGHT"(postorte.alort,4) AS Id, postorte.oname AS Land,'
        " postorte.ozusatz AS LandKurz, postplz.vorwahl As Vorwahl FROM postplz INNER JOIN postorte ON postplz.alort ="
        " postorte.alort WHERE postorte.alort LIKE 'land%' ORDER BY postorte.oname "
    ).fetchall()
    assert len(listed) > 10
    assert ("DE  ", "Deutschland", "DE", "0049") in [tuple(r) for r in listed]


def test_a_cross_table_of_objects_and_their_details_runs(sample):
    found = sample.execute(
        "SELECT t1.Intern, MAX (CASE Kürzel WHEN 'Zimmer' THEN Eingabe END ) AS 'Zimmer',"
        " MAX (CASE Kürzel WHEN 'Preis' THEN Von_Num END ) AS 'Preis_Von_Num' FROM Version , "
        " (SELECT OBJ.Intern, t2.Kürzel, t2.Eingabe, t2.Sortierung, t2.Von_Num, t2.Bis_Num, t2.Typ,"
        " t2.Bezeichnung, t2.Wert, t2.FldArt_Dsn, t2.FldArtOp_Dsn  FROM OBJ LEFT OUTER JOIN (SELECT"
        " FldArt.Kürzel, FldArt.Sortierung, FldArt.Typ, FldArtOp.Bezeichnung, FldArtOp.Wert,"
        " OBJDet.OBJ_Dsn, OBJDet.Eingabe, OBJDet.Von_Num, OBJDet.Bis_Num, OBJDet.FldArt_Dsn,"
        " OBJDet.FldArtOp_Dsn FROM OBJ INNER JOIN OBJDet ON OBJ.Dsn = OBJDet.OBJ_Dsn INNER JOIN"
        " FldArt ON OBJDet.FldArt_Dsn = FldArt.Dsn LEFT OUTER JOIN FldArtOp ON OBJDet.FldArtOp_Dsn ="
        " FldArtOp.Dsn WHERE (FldArt.Kürzel='Zimmer' OR FldArt.Kürzel='Preis') ) AS t2 on OBJ.Dsn ="
        " t2.OBJ_dsn WHERE (OBJ.Intern='Lindenweg 12') ) AS t1 GROUP BY t1.Intern "
    ).fetchall()
    assert [tuple(r) for r in found] == [("Lindenweg 12", "5", 485000.0)]
