# Ein Arbeitstag im Maklerbuero:  powershell -File arbeitstag.ps1 C:\Corvanta
param([Parameter(Mandatory)][string]$Ordner)

$app = New-Object -ComObject CVDeveloper.Application
$app.Corvanta_InitConnector($Ordner, 'chef', '')
if ($app.Corvanta_InitType -eq 0) { exit 1 }
try {
    'Was heute ansteht'
    $rs = $app.AKT_Find('Erledigt = 0 AND Datum IS NOT NULL', 'Datum DESC LIMIT 5')
    while (-not $rs.EOF) {
        '  {0:dd.MM.yyyy HH:mm}  {1}' -f $rs.Fields.Item('Datum').Value,
            $rs.Fields.Item('Subject').Value
        $rs.MoveNext()
    }

    'Ein Anruf'
    $adresse = $app.AD_Find('Firma IS NOT NULL', 'Kennung')
    $firma = $adresse.Fields.Item('Firma').Value
    $dsn = $app.AKT_Create($app.AKTART_FindDsnByName('Anruf'), "Anruf von $firma")
    $akt = $app.AKT_FindByDSN($dsn)
    '  {0}: {1}' -f $akt.Fields.Item('Kennung').Value.Trim(), $akt.Fields.Item('Subject').Value

    'Objekte als Tabelle'
    $anweisung = $app.oBase.Sql_CrossTable('OBJ', 'Kennung|Intern', 'Zimmer|Preis',
        'OBJ.Aktiv = 1', 't1.Kennung LIMIT 8')
    $rs = $app.oBase.CV_GetRecordset($anweisung)
    while (-not $rs.EOF) {
        $zeile = 'Kennung', 'Intern', 'Zimmer', 'Preis' | ForEach-Object {
            "$($rs.Fields.Item($_).Value)".Trim()
        }
        '  ' + ($zeile -join '  ')
        $rs.MoveNext()
    }
}
catch [System.Runtime.InteropServices.COMException] {
    'Fehler 0x{0:X8}: {1}' -f $_.Exception.HResult, $_.Exception.Message
    exit 1
}
finally {
    $app.Corvanta_Done()
}
