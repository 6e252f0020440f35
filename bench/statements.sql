-- What the library sends, with parameters where it sends literals: every peer runs these.
-- The tests compare them with the library's own log.

-- name: no_activity
SELECT * FROM AKT  WHERE 1=2
-- name: number
SELECT Kennung_AKT FROM Std
-- name: take_number
UPDATE cv_counter SET last_number = last_number + 1 WHERE name = 'Kennung_AKT'
RETURNING prefix, last_number
-- name: user
SELECT * FROM Benutzer WHERE DSN=:user
-- name: insert_activity
INSERT INTO AKT (DSN, Kennung, Priorität, FArchiv, Art_Dsn, Subject, Notiz, Erledigt, Datum,
Datum_Bis, Vorlage, Alarm, Loeschdatum, Stichwort1, Stichwort2, Emsk_Dsn, AD_Dsn, AD_B_Dsn,
OBJ_Dsn, ANF_Dsn, Projekte_Dsn, Akten_Dsn, Verträge_Dsn, Details_Dsn, Akt_Dsn, ACL)
VALUES (:dsn, :code, 1, 0, NULL, :subject, '', 0, NULL,
NULL, NULL, NULL, NULL, '', '', NULL, NULL, NULL,
NULL, NULL, NULL, NULL, NULL, NULL, NULL, :acl)
-- name: link
SELECT * FROM AKTMKM WHERE (link_dsn=:record) AND (mkm_dsn=:feature)
-- name: insert_link
INSERT INTO AKTMKM (DSN, Link_DSN, MKM_DSN) VALUES (:dsn, :record, :feature)

-- name: detail_value
SELECT AKTDET.Eingabe FROM AKT INNER JOIN AKTDET ON AKT.dsn = AKTDET.AKT_dsn
WHERE (AKT.DSN=:record) AND (AKTDET.FLDART_DSN=:kind) ORDER BY AKTDET.DSN
-- name: detail_row
SELECT AKTDET.* FROM AKT INNER JOIN AKTDET ON AKT.dsn = AKTDET.AKT_dsn
WHERE (AKT.DSN=:record) AND (AKTDET.FLDART_DSN=:kind) ORDER BY AKTDET.DSN
-- name: update_detail
UPDATE AKTDET SET Eingabe=:value, STAMP=:stamp WHERE DSN=:dsn AND STAMP=:before

-- name: find
SELECT * FROM AKT  WHERE Projekte_Dsn=:project

-- name: activities_to_copy
SELECT * FROM AKT  WHERE Projekte_Dsn=:project ORDER BY Kennung
-- name: no_copy
SELECT * FROM Akt WHERE 1=2
-- name: features_to_copy
SELECT * FROM AKTMkm WHERE Link_dsn=:record
-- name: attachments_to_copy
SELECT * FROM Blob WHERE uidLINK_DSN=:record ORDER BY rowid
-- name: details_to_copy
SELECT AKTDet.* FROM AKT INNER JOIN AKTDet ON AKT.Dsn = AKTDet.AKT_Dsn WHERE AKTDet.AKT_dsn=:record
-- name: no_detail
SELECT AKTDet.* FROM AKT INNER JOIN AKTDet ON AKT.Dsn = AKTDet.AKT_Dsn WHERE 1=2
