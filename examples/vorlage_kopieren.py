"""Ein neuer Verkauf aus dem Vorlageprojekt: alle Aktivitäten kopiert, die Termine verschoben."""

import datetime
import sys

import cvdeveloper

BEZUGSDATUM = datetime.datetime(2026, 1, 5)  # ein Montag; auf ihn beziehen sich die Termine
BEGINN = datetime.datetime(2026, 11, 25)  # ein Mittwoch


def aktivitaeten(app, projekt):
    return app.AKT_Find(f"Projekte_Dsn={app.oUtil.SqlUid(projekt)}", "Datum, Kennung")


def kopieren(app, vorlage, projekt):
    kopien = app.AKT_Copy(
        aktivitaeten(app, vorlage),
        strProjekteDsn=projekt,
        datStartDate=BEGINN,
        datRefDate=BEZUGSDATUM,
    )
    app.AKT_Update(kopien)


def baum(app, projekt):
    """Die Aktivitäten des Projekts, jede mit ihrer Tiefe im Baum."""
    kinder = {}
    for zeile in aktivitaeten(app, projekt):
        eintrag = {feld: zeile[feld] for feld in ("DSN", "Subject", "Datum")}
        kinder.setdefault(zeile["Akt_Dsn"], []).append(eintrag)

    def zweig(eltern, tiefe):
        for eintrag in kinder.get(eltern, []):
            yield tiefe, eintrag
            yield from zweig(eintrag["DSN"], tiefe + 1)

    return zweig(None, 0)


def anhaengsel(app, akt):
    """Merkmale, Details und Anlagen einer Aktivität in einer Zeile."""
    teile = [app.MKM_NameByDSN(mkm) for mkm in app.AKT_Merkmal_Get(akt).split(",") if mkm]
    details = app.oBase.CV_GetRecordset(
        "SELECT FldArt.Kürzel, AKTDET.Eingabe FROM AKTDET "
        "INNER JOIN FldArt ON AKTDET.FldArt_DSN = FldArt.DSN "
        f"WHERE AKTDET.AKT_DSN={app.oUtil.SqlUid(akt)} ORDER BY FldArt.Sortierung"
    )
    teile += [f"{zeile['Kürzel']}: {zeile['Eingabe']}" for zeile in details]
    for anlage in app.BLOB_GetInfo(akt):
        name = anlage["strsourcefilename"].replace("\\", "/").rsplit("/", 1)[-1]
        teile.append(f"Anlage: {name}")
    return ", ".join(teile)


def zeigen(app, projekt):
    for tiefe, akt in baum(app, projekt):
        betreff = "  " * tiefe + akt["Subject"]
        print(f"  {akt['Datum']:%d.%m.%Y}  {betreff:<46}{anhaengsel(app, akt['DSN'])}".rstrip())


def main():
    ordner = sys.argv[1]
    with cvdeveloper.connect(ordner) as app:
        app.LogPath = ordner
        vorlage = app.PROJEKTE_Find("Bezeichnung='Vorlage Verkauf'", "Kennung")["DSN"]
        projekt = app.PROJEKTE_Create(strBezeichnung="Verkauf Rosenweg 3")
        kopieren(app, vorlage, projekt)
        for titel, dsn in (("Vorlage Verkauf", vorlage), ("Verkauf Rosenweg 3", projekt)):
            print(f"\n{titel}\n{'-' * len(titel)}")
            zeigen(app, dsn)


if __name__ == "__main__":
    main()
