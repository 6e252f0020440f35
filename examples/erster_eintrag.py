"""Der erste Eintrag: anmelden, eine Aktivität anlegen, finden, ändern, das Protokoll lesen."""

import sys
from pathlib import Path

import cvdeveloper

ordner = sys.argv[1]

with cvdeveloper.connect(ordner) as app:
    app.LogPath = ordner
    app.FlagSqlLog = True

    dsn = app.AKT_Create(strBetreff="Anruf von Frau Muster", strNotiz="Bittet um Rückruf.")
    print("angelegt:  ", app.oBase.Sql_GetKennung("AKT", dsn, False), app.oBase.Sql_GetField("AKT", dsn, "Subject"))

    rs = app.AKT_FindByDSN(dsn)
    rs["Erledigt"] = 1
    app.AKT_Update(rs)
    print("geändert:  ", "Erledigt =", app.AKT_FindByDSN(dsn)["Erledigt"])
    print("Merkmale:  ", app.AKT_Merkmal_Get(dsn).count(",") + 1)

protokoll = Path(ordner, "cvDeveloper.log").read_text(encoding="utf-8").splitlines()
print("Protokoll: ", len(protokoll), "Zeilen, zum Beispiel:")
for zeile in protokoll:
    if " : SELECT" in zeile:
        print("   ", zeile[:110])
