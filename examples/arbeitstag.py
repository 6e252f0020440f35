"""Ein Arbeitstag im Maklerbüro, auf den Beispieldaten."""

import datetime
import sys

import cvdeveloper


def ueberschrift(text):
    print(f"\n{text}\n{'-' * len(text)}")


def zeilen(rs, *felder):
    """Die Felder aller Zeilen eines Recordsets, ab der aktuellen."""
    for zeile in rs:
        yield [zeile[feld] for feld in felder]


def offene_aktivitaeten(app):
    ueberschrift("Was heute ansteht")
    offen = app.AKT_Find("Erledigt = 0 AND Datum IS NOT NULL", "Datum DESC LIMIT 5")
    for datum, betreff in zeilen(offen, "Datum", "Subject"):
        print(f"  {datum:%d.%m.%Y %H:%M}  {betreff}")


def anruf(app):
    ueberschrift("Ein Anruf")
    adresse = app.AD_Find("Firma IS NOT NULL", "Kennung")
    dsn = app.AKT_Create(
        strAktArtDsn=app.AKTART_FindDsnByName("Anruf"),
        strBetreff="Rückfrage zum Exposé",
        dateDatum=datetime.datetime(2026, 11, 23, 10, 0),
        strAdDsn1=adresse["DSN"],
    )
    if app.AKTART_FindDsnByName("Anruf"):
        app.AKT_SetAktArtByDsn(dsn, app.AKTART_FindDsnByName("Anruf"))
    akt = app.AKT_FindByDSN(dsn)
    print(f"  {akt['Kennung'].strip()}: {akt['Subject']} mit {adresse['Firma']}")
    if akt["Vorlage"] and akt["Vorlage"].year > 1900:
        print(f"  Wiedervorlage: {akt['Vorlage']:%d.%m.%Y %H:%M}")
    return dsn


def merkmale_und_details(app):
    ueberschrift("Ein Objekt mit seinen Merkmalen und Details")
    objekt = app.OBJ_Find("Aktiv = 1", "Kennung")
    dsn = objekt["DSN"]
    print(f"  {objekt['Kennung'].strip()}: {objekt['Intern']}")
    merkmale = [
        app.MKM_NameByDSN(mkm) for mkm in app.oBase.Mkm_Get("OBJ", dsn).split(",") if mkm
    ]
    print("  Merkmale:", ", ".join(merkmale) or "keine")
    details = app.oBase.CV_GetRecordset(
        "SELECT FldArt.Kürzel, OBJDET.Eingabe FROM OBJDET "
        "INNER JOIN FldArt ON OBJDET.FldArt_DSN = FldArt.DSN "
        f"WHERE OBJDET.OBJ_DSN={app.oUtil.SqlUid(dsn)} ORDER BY FldArt.Sortierung"
    )
    for name, wert in zeilen(details, "Kürzel", "Eingabe"):
        print(f"    {name:<20} {wert}")


def kreuztabelle(app):
    ueberschrift("Objekte als Tabelle: Zimmer, Fläche, Preis")
    anweisung = app.oBase.Sql_CrossTable(
        "OBJ", "Kennung|Intern", "Zimmer|Wohnfläche|Preis", "OBJ.Aktiv = 1", "t1.Kennung LIMIT 8"
    )
    rs = app.oBase.CV_GetRecordset(anweisung)
    print(f"  {'Objekt':<12}{'Bezeichnung':<34}{'Zimmer':>8}{'Fläche':>12}{'Preis':>16}")
    for kennung, intern, zimmer, flaeche, preis in zeilen(
        rs, "Kennung", "Intern", "Zimmer", "Wohnfläche", "Preis"
    ):
        print(
            f"  {kennung.strip():<12}{(intern or '')[:32]:<34}"
            f"{zimmer or '':>8}{flaeche or '':>12}{preis or '':>16}"
        )


def main():
    ordner = sys.argv[1]
    with cvdeveloper.connect(ordner) as app:
        app.LogPath = ordner
        offene_aktivitaeten(app)
        anruf(app)
        merkmale_und_details(app)
        kreuztabelle(app)


if __name__ == "__main__":
    main()
