Attribute VB_Name = "Arbeitstag"
' Ein Arbeitstag im Maklerbuero als VBA-Modul, frueh gebunden: im Editor unter Extras, Verweise
' "Corvanta Entwicklungstools" ankreuzen, diese Datei importieren, ArbeitstagZeigen aufrufen. Die
' Ausgabe steht im Direktfenster.
Option Explicit

Public Sub ArbeitstagZeigen()
    Dim app As New CVDeveloper.Application
    app.Corvanta_InitConnector "C:\Corvanta", "chef", ""
    If app.Corvanta_InitType = INITTYPE_NONE Then Exit Sub
    On Error GoTo Fehler

    OffeneAktivitaeten app
    Anruf app
    Kreuztabelle app

Ende:
    app.Corvanta_Done
    Exit Sub
Fehler:
    Debug.Print "Fehler " & Err.Number & ": " & Err.Description
    Resume Ende
End Sub

Private Sub OffeneAktivitaeten(ByVal app As CVDeveloper.Application)
    Dim rs As Object
    Set rs = app.AKT_Find("Erledigt = 0 AND Datum IS NOT NULL", "Datum DESC LIMIT 5")
    Do Until rs.EOF
        Debug.Print rs("Datum") & "  " & rs("Subject")
        rs.MoveNext
    Loop
End Sub

Private Sub Anruf(ByVal app As CVDeveloper.Application)
    Dim adresse As Object
    Dim akt As Object
    Dim dsn As String
    Set adresse = app.AD_Find("Firma IS NOT NULL", "Kennung")
    dsn = app.AKT_Create(strAktArtDsn:=app.AKTART_FindDsnByName("Anruf"), _
                         strBetreff:="Anruf von " & adresse("Firma"), _
                         dateDatum:=#11/23/2026 10:00:00 AM#, _
                         strAdDsn1:=adresse("DSN"))
    Set akt = app.AKT_FindByDSN(dsn)
    Debug.Print Trim(akt("Kennung")) & ": " & akt("Subject")
End Sub

Private Sub Kreuztabelle(ByVal app As CVDeveloper.Application)
    Dim rs As Object
    Set rs = app.oBase.CV_GetRecordset(app.oBase.Sql_CrossTable( _
        "OBJ", "Kennung|Intern", "Zimmer|Preis", "OBJ.Aktiv = 1", "t1.Kennung LIMIT 8"))
    Do Until rs.EOF
        Debug.Print Trim(rs("Kennung")), rs("Intern"), rs("Zimmer"), rs("Preis")
        rs.MoveNext
    Loop
End Sub
