' Ein Arbeitstag im Maklerbuero, auf den Beispieldaten:
'
'     cscript //nologo arbeitstag.vbs C:\Corvanta
'
' Umlaute stehen als Chr da, damit die Datei in jeder Kodierung dieselbe ist.
Option Explicit

Dim ae: ae = Chr(228)
Dim ue: ue = Chr(252)

Sub Ueberschrift(text)
    WScript.Echo ""
    WScript.Echo text
    WScript.Echo String(Len(text), "-")
End Sub

Function Rechts(wert, breite)
    Rechts = Right(Space(breite) & wert, breite)
End Function

Function Links(wert, breite)
    Links = Left(wert & Space(breite), breite)
End Function

Sub OffeneAktivitaeten(app)
    Ueberschrift "Was heute ansteht"
    Dim rs: Set rs = app.AKT_Find("Erledigt = 0 AND Datum IS NOT NULL", "Datum DESC LIMIT 5")
    Do Until rs.EOF
        WScript.Echo "  " & rs("Datum") & "  " & rs("Subject")
        rs.MoveNext
    Loop
End Sub

Sub Anruf(app)
    Ueberschrift "Ein Anruf"
    Dim art: art = app.AKTART_FindDsnByName("Anruf")
    Dim adresse: Set adresse = app.AD_Find("Firma IS NOT NULL", "Kennung")
    Dim wann: wann = DateSerial(2026, 11, 23) + TimeSerial(10, 0, 0)
    Dim dsn: dsn = app.AKT_Create(art, "R" & ue & "ckfrage", , , wann, , , , , , , , adresse("DSN"))
    If art <> "" Then app.AKT_SetAktArtByDsn dsn, art
    Dim akt: Set akt = app.AKT_FindByDSN(dsn)
    WScript.Echo "  " & Trim(akt("Kennung")) & ": " & akt("Subject") & " mit " & adresse("Firma") & _
        " am " & akt("Datum")
End Sub

Sub MerkmaleUndDetails(app)
    Ueberschrift "Ein Objekt mit seinen Merkmalen und Details"
    Dim objekt: Set objekt = app.OBJ_Find("Aktiv = 1", "Kennung")
    WScript.Echo "  " & Trim(objekt("Kennung")) & ": " & objekt("Intern")
    Dim merkmal
    For Each merkmal In Split(app.oBase.Mkm_Get("OBJ", objekt("DSN")), ",")
        If merkmal <> "" Then WScript.Echo "  Merkmal: " & app.MKM_NameByDSN(merkmal)
    Next
    Dim rs: Set rs = app.oBase.CV_GetRecordset( _
        "SELECT FldArt.K" & ue & "rzel, OBJDET.Eingabe FROM OBJDET " & _
        "INNER JOIN FldArt ON OBJDET.FldArt_DSN = FldArt.DSN " & _
        "WHERE OBJDET.OBJ_DSN=" & app.oUtil.SqlUid(objekt("DSN")) & " ORDER BY FldArt.Sortierung")
    Do Until rs.EOF
        WScript.Echo "    " & Links(rs("K" & ue & "rzel"), 20) & " " & rs("Eingabe")
        rs.MoveNext
    Loop
End Sub

Sub Kreuztabelle(app)
    Dim flaeche: flaeche = "Wohnfl" & ae & "che"
    Ueberschrift "Objekte als Tabelle: Zimmer, Fl" & ae & "che, Preis"
    Dim rs: Set rs = app.oBase.CV_GetRecordset(app.oBase.Sql_CrossTable( _
        "OBJ", "Kennung|Intern", "Zimmer|" & flaeche & "|Preis", "OBJ.Aktiv = 1", _
        "t1.Kennung LIMIT 8"))
    Do Until rs.EOF
        WScript.Echo "  " & Links(Trim(rs("Kennung")), 12) & Links(rs("Intern") & "", 34) & _
            Rechts(rs("Zimmer"), 8) & Rechts(rs(flaeche), 12) & Rechts(rs("Preis"), 16)
        rs.MoveNext
    Loop
End Sub

Dim app: Set app = CreateObject("CVDeveloper.Application")
app.Corvanta_InitConnector WScript.Arguments(0), "chef", ""
If app.Corvanta_InitType = 0 Then WScript.Quit 1
app.LogPath = WScript.Arguments(0)
OffeneAktivitaeten app
Anruf app
MerkmaleUndDetails app
Kreuztabelle app
app.Corvanta_Done
