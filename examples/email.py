"""Eine E-Mail als Aktivität, mit zwei Anlagen; dazu eine Anlage, deren Inhalt gespeichert wird."""

import sys
from pathlib import Path

import cvdeveloper


def schreiben(ordner, name, text):
    pfad = Path(ordner, name)
    pfad.write_text(text, encoding="utf-8")
    return str(pfad)


def main():
    ordner = sys.argv[1]
    expose = schreiben(ordner, "Exposé Lindenweg 12.txt", "Helle Wohnung, drei Zimmer, Balkon.\n")
    grundriss = schreiben(ordner, "Grundriss.txt", "Küche | Wohnen | Schlafen\n")

    with cvdeveloper.connect(ordner) as app:
        app.LogPath = ordner
        dsn = app.AKT_CreateEMail(
            strMailTo="kunde@example.org",
            strMailSubject="Ihr Exposé",
            strMailBody="Guten Tag,\r\n\r\nanbei das Exposé mit Grundriss.",
            strAttachmentPipeList=f"{expose} | {grundriss}",
        )
        email = app.AKT_FindByDSN(dsn)
        print(f"  Betreff:  {email['Subject']}")
        print(f"  Von:      {email['MailFrom']}")
        print(f"  An:       {email['MailTo']}")
        zustand = cvdeveloper.ENUM_DELIVERYSTATE(email["delivery_state"])
        print(f"  Zustand:  {zustand.name}")

        # Links gehen verloren, wenn die Datei verschwindet; der Inhalt einer Kopie nicht.
        app.AKT_Blob_Add(dsn, expose)
        Path(expose).unlink()

        anlagen = app.BLOB_GetInfo(dsn)
        while not anlagen.EOF:
            quelle = Path(anlagen["strsourcefilename"])
            if anlagen["lngTyp"] == cvdeveloper.ENUM_BLOBTYPE.BLOBTYPE_ATTACHMENTLINK:
                print(f"  Link:     {quelle.name} ({'vorhanden' if quelle.exists() else 'fehlt'})")
            else:
                ziel = app.BLOB_SaveAs(anlagen, ordner, "Exposé gesichert.txt")
                print(f"  Inhalt:   {quelle.name} ({int(anlagen['dblSize'])} Bytes)")
                print(f"            gesichert als {Path(ziel).name}")
            anlagen.MoveNext()


if __name__ == "__main__":
    main()
