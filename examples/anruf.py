"""Ein Anruf: Nummer erkennen, Adresse finden oder anlegen, Anfrage aufnehmen, Brief schreiben."""

import sys

import cvdeveloper

BRIEF = """\
{Briefanrede},

vielen Dank für Ihren Anruf am {HEUTE}. Wir suchen für Sie in {Ort}:
{Wunsch}.
Unter der Nummer {Kennung} finden wir Ihre Anfrage wieder.

{Firma}
{Sitz}"""


def ueberschrift(text):
    print(f"\n{text}\n{'-' * len(text)}")


def neue_adresse(app, nummer, anrede, titel, vorname, nachname, ort):
    """Legt eine Person an; die Nummer steht danach auch im Verzeichnis der Anrufer."""
    dsn = app.AD_Create(strPLZ="45000", strOrt=ort)
    adresse = app.AD_FindByDSN(dsn)
    app.AD_SetNameAndSalutation(adresse, anrede, titel, vorname, nachname)
    telefon = app.AD_GetPhoneList(adresse)
    telefon.Add(nummer, "", "privat")
    app.AD_SetPhoneList(adresse, telefon)
    app.AD_Update(adresse)
    print(f"  neu angelegt: {adresse['NAME']} (Nachname {adresse['IDX_NAME']})")
    return dsn


def anrufer(app, nummer, **person):
    dsn = app.AD_FindDSNByPhoneEMail(nummer)
    if dsn:
        print(f"  bekannt: {app.oBase.Sql_GetField('AD', dsn, 'NAME')}")
        return dsn
    print(f"  {nummer} ist nicht bekannt")
    return neue_adresse(app, nummer, **person)


def anfrage(app, adresse_dsn, wuensche):
    """Eine Anfrage mit ihren Details; der Host liest, was eingegeben wurde."""
    dsn = app.ANF_Create(strAdDsn=adresse_dsn, enumEART=cvdeveloper.EART_KAUF)
    for name, eingabe in wuensche.items():
        app.ANF_Detail_Set(dsn, app.FldArt_FindDsnByName(name), eingabe)
    details = app.oBase.CV_GetRecordset(
        "SELECT ANFDET.*, FldArt.Kürzel FROM ANFDET "
        "INNER JOIN FldArt ON ANFDET.FldArt_DSN = FldArt.DSN "
        f"WHERE ANFDET.ANF_DSN={app.oUtil.SqlUid(dsn)} ORDER BY FldArt.Sortierung"
    )
    ungelesen = app.oBase.CV_ParseAndFill(details, 0)
    app.oBase.CV_UpdateRecordset(details)
    for zeile in details:
        von, bis = (f"{zeile[feld]:,.0f}".replace(",", ".") for feld in ("Von_Num", "Bis_Num"))
        print(f"  {zeile['Kürzel']:<12} {zeile['Eingabe']:<18}{von:>12}{bis:>12}")
    if ungelesen:
        print("  nicht gelesen:", ungelesen.replace("\r\n", "; "))
    return dsn


def brief(app, adresse_dsn, anfrage_dsn, wuensche):
    wunsch = ", ".join(f"{name} {eingabe}" for name, eingabe in wuensche.items())
    text = app.oTools.ReplacePlatzhalter(
        BRIEF,
        app.oBase.CV_GetRecordset(
            "SELECT BRIEFANREDE, Ort FROM AD WHERE DSN=" + app.oUtil.SqlUid(adresse_dsn)
        ),
        "SELECT Std.Firma, Std.Ort AS Sitz, ANF.Kennung, "
        f"{app.oUtil.SqlUid(wunsch)} AS Wunsch FROM Std, ANF "
        f"WHERE ANF.DSN={app.oUtil.SqlUid(anfrage_dsn)}",
    )
    for zeile in text.splitlines():
        print(f"  | {zeile}")


def main():
    cvdeveloper.host.start(sys.argv[1])
    app = cvdeveloper.Application()
    app.Corvanta_InitApplication()

    ueberschrift("Das Telefon klingelt: 0201 0000210")
    anrufer(app, "0201 0000210")

    ueberschrift("Das Telefon klingelt: 0201 4711")
    person = {
        "anrede": "Frau", "titel": "Dr.", "vorname": "Eva", "nachname": "von Berg",
        "ort": "Musterstadt",
    }  # fmt: skip
    adresse_dsn = anrufer(app, "0201 4711", **person)
    print("  beim nächsten Anruf:")
    anrufer(app, "0201 4711")

    ueberschrift("Was sie sucht")
    wuensche = {
        "Zimmer": "4 - 6", "Wohnfläche": "ab 120", "Preis": "bis 500.000", "Baujahr": "neuer",
    }  # fmt: skip
    anfrage_dsn = anfrage(app, adresse_dsn, wuensche)

    ueberschrift("Der Brief")
    del wuensche["Baujahr"]
    brief(app, adresse_dsn, anfrage_dsn, wuensche)

    app.Corvanta_Done()


if __name__ == "__main__":
    main()
