-- The database of the stand-alone host: every table that scripts, the library and the host itself
-- use.
--
-- Declared types are read by the host and become the types of the record sets' fields:
--   CHAR(36)      a record key, upper-case, without braces
--   VARCHAR(n)    text of at most n characters, counted as UTF-16 code units
--   LONGTEXT      text without a limit          LONGBLOB   bytes without a limit
--   SMALLINT      16 bits, also every flag (1 or 0)
--   INTEGER       32 bits                       DOUBLE     floating point
--   DATETIME      local time as text, "2026-03-01 14:30:00", with ".250" for milliseconds; in this
--                 form conditions and sorting work on the text itself
--
-- CVTEXT compares as the users expect: without regard to case (umlauts included) and to trailing
-- blanks. Keys use it too: a script may write them in lower case.
--
-- No foreign keys, and nothing unique but DSN: a link to a row that is saved later, the same
-- feature linked twice and the key of a deleted row are legal. Only DSN and STAMP refuse null.
--
-- Indexes that say IS NOT NULL stand on links that most rows leave empty; they cost nothing there.

-- ----------------------------------------------------------------------------------------------
-- Main tables: what the users work with.
-- ----------------------------------------------------------------------------------------------

-- Activities: calls, letters, e-mails, appointments, tasks.
CREATE TABLE AKT (
    DSN                     CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP                   INTEGER NOT NULL DEFAULT 0,
    Kennung                 VARCHAR(20) COLLATE CVTEXT,
    Akt_Dsn                 CHAR(36) COLLATE CVTEXT,      -- the activity this one hangs under
    Art_Dsn                 CHAR(36) COLLATE CVTEXT,      -- Aktivitätenarten
    Subject                 VARCHAR(256) COLLATE CVTEXT,
    Notiz                   LONGTEXT COLLATE CVTEXT,
    Emsk_Dsn                CHAR(36) COLLATE CVTEXT,
    Erledigt                SMALLINT DEFAULT 0,
    Priorität               SMALLINT DEFAULT 1,
    Status                  VARCHAR(30) COLLATE CVTEXT,
    -- when
    Datum                   DATETIME,
    Datum_Bis               DATETIME,
    Vorlage                 DATETIME,                     -- follow-up date; 0 means none
    Alarm                   DATETIME,
    Loeschdatum             DATETIME,                     -- may be deleted from this day on
    Erledigt_Am             DATETIME,
    Erledigt_Ben_Dsn        CHAR(36) COLLATE CVTEXT,
    Ganztags                SMALLINT DEFAULT 0,
    Dauer                   DOUBLE,                       -- minutes
    PeriodenArt             SMALLINT,
    PeriodenIntervall       INTEGER,
    PeriodenEnde            DATETIME,
    -- who and about what
    Ben_Dsn                 CHAR(36) COLLATE CVTEXT,      -- the user in charge
    Abteilung               INTEGER,
    AD_Dsn                  CHAR(36) COLLATE CVTEXT,
    AD_B_Dsn                CHAR(36) COLLATE CVTEXT,      -- second address
    OBJ_Dsn                 CHAR(36) COLLATE CVTEXT,
    ANF_Dsn                 CHAR(36) COLLATE CVTEXT,
    Projekte_Dsn            CHAR(36) COLLATE CVTEXT,
    Akten_Dsn               CHAR(36) COLLATE CVTEXT,
    Verträge_Dsn            CHAR(36) COLLATE CVTEXT,
    Details_Dsn             CHAR(36) COLLATE CVTEXT,
    Stichwort1              VARCHAR(50) COLLATE CVTEXT,
    Stichwort2              VARCHAR(50) COLLATE CVTEXT,
    Treffpunkt              VARCHAR(100) COLLATE CVTEXT,
    Ergebnis                VARCHAR(100) COLLATE CVTEXT,
    Privat                  SMALLINT DEFAULT 0,
    Kalender                SMALLINT DEFAULT 0,
    BackColor               INTEGER,
    FontColor               INTEGER,
    -- what it cost
    Km                      DOUBLE,
    Betrag                  DOUBLE,
    MwSt                    DOUBLE,                       -- per cent
    Abrechenbar             SMALLINT DEFAULT 0,
    Abgerechnet_Am          DATETIME,
    Rechnungsnummer         VARCHAR(30) COLLATE CVTEXT,
    Kostenstelle            VARCHAR(20) COLLATE CVTEXT,
    -- phone call
    Telefonnummer           VARCHAR(50) COLLATE CVTEXT,
    Richtung                SMALLINT,                     -- 0 in, 1 out
    Gesprächsdauer          INTEGER,                      -- seconds
    -- letter
    Dokument                VARCHAR(254) COLLATE CVTEXT,  -- the file it was written in
    Versandart              VARCHAR(30) COLLATE CVTEXT,
    Seiten                  SMALLINT,
    -- e-mail
    MailTo                  LONGTEXT COLLATE CVTEXT,
    MailFrom                LONGTEXT COLLATE CVTEXT,
    cc                      LONGTEXT COLLATE CVTEXT,
    bcc                     LONGTEXT COLLATE CVTEXT,
    reply_to                VARCHAR(254) COLLATE CVTEXT,
    message_id              VARCHAR(254) COLLATE CVTEXT,
    in_reply_to             VARCHAR(254) COLLATE CVTEXT,
    mail_html               LONGTEXT COLLATE CVTEXT,
    mail_header             LONGTEXT COLLATE CVTEXT,
    importance              SMALLINT,
    read_receipt            SMALLINT DEFAULT 0,
    gelesen                 SMALLINT DEFAULT 0,
    deferred_delivery_time  DATETIME,                     -- not to be sent before
    delivery_time           DATETIME,
    delivery_state          INTEGER DEFAULT 0,            -- 0 none 1 in 2 queued 3 sent 4 failed
    delivery_error          VARCHAR(254) COLLATE CVTEXT,
    delivery_attempts       SMALLINT,
    from_ben_dsn            CHAR(36) COLLATE CVTEXT,
    -- for exchange with other calendars
    extern_id               VARCHAR(254) COLLATE CVTEXT,
    extern_touch            DATETIME,
    ACL                     VARCHAR(1000) COLLATE CVTEXT,
    FArchiv                 SMALLINT DEFAULT 0,
    NEU_BEN_DSN             CHAR(36) COLLATE CVTEXT,
    ANGELEGT                DATETIME,
    ÄN_BEN_DSN              CHAR(36) COLLATE CVTEXT,
    TOUCH                   DATETIME
);
CREATE INDEX ix_AKT_Kennung ON AKT (Kennung);
CREATE INDEX ix_AKT_Akt_Dsn ON AKT (Akt_Dsn) WHERE Akt_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_Datum ON AKT (Datum);
CREATE INDEX ix_AKT_Vorlage ON AKT (Vorlage) WHERE Vorlage IS NOT NULL;
CREATE INDEX ix_AKT_AD_Dsn ON AKT (AD_Dsn) WHERE AD_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_AD_B_Dsn ON AKT (AD_B_Dsn) WHERE AD_B_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_OBJ_Dsn ON AKT (OBJ_Dsn) WHERE OBJ_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_ANF_Dsn ON AKT (ANF_Dsn) WHERE ANF_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_Projekte_Dsn ON AKT (Projekte_Dsn) WHERE Projekte_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_Akten_Dsn ON AKT (Akten_Dsn) WHERE Akten_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_Verträge_Dsn ON AKT (Verträge_Dsn) WHERE Verträge_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_Details_Dsn ON AKT (Details_Dsn) WHERE Details_Dsn IS NOT NULL;
CREATE INDEX ix_AKT_delivery ON AKT (delivery_state, deferred_delivery_time);

-- Property objects. Rooms, areas, prices and the like are detail values (OBJDET), not columns.
CREATE TABLE OBJ (
    DSN                     CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP                   INTEGER NOT NULL DEFAULT 0,
    Kennung                 VARCHAR(20) COLLATE CVTEXT,
    Obj_Dsn                 CHAR(36) COLLATE CVTEXT,      -- the object this one is part of
    Aktiv                   SMALLINT DEFAULT 1,
    Priorität               SMALLINT DEFAULT 1,
    Status                  VARCHAR(30) COLLATE CVTEXT,
    Intern                  VARCHAR(254) COLLATE CVTEXT,  -- how the office calls it
    EART                    INTEGER DEFAULT 0,            -- 0 for sale, 1 for rent, 2 both
    EMSK_DSN                CHAR(36) COLLATE CVTEXT,
    Notiz                   LONGTEXT COLLATE CVTEXT,
    Datei                   VARCHAR(100) COLLATE CVTEXT,  -- first part of the picture files' names
    Abteilung               INTEGER,
    Ben_Dsn                 CHAR(36) COLLATE CVTEXT,      -- the user in charge
    -- people
    AD_ANBIETER_DSN         CHAR(36) COLLATE CVTEXT,
    AD_Eigentümer_Dsn       CHAR(36) COLLATE CVTEXT,
    AD_Ansprechpartner_Dsn  CHAR(36) COLLATE CVTEXT,
    AD_Verwalter_Dsn        CHAR(36) COLLATE CVTEXT,
    AD_Mieter_Dsn           CHAR(36) COLLATE CVTEXT,
    AD_Käufer_Dsn           CHAR(36) COLLATE CVTEXT,
    -- mandate
    Auftragsart             VARCHAR(30) COLLATE CVTEXT,
    Auftragsnummer          VARCHAR(30) COLLATE CVTEXT,
    Auftragsbeginn          DATETIME,
    Auftragsende            DATETIME,
    Provision_Innen         VARCHAR(100) COLLATE CVTEXT,
    Provision_Außen         VARCHAR(100) COLLATE CVTEXT,
    Quelle                  VARCHAR(50) COLLATE CVTEXT,
    -- where it is
    Straße                  VARCHAR(254) COLLATE CVTEXT,
    Land                    VARCHAR(4) COLLATE CVTEXT,
    Land_Plz                VARCHAR(50) COLLATE CVTEXT,
    Ort                     VARCHAR(30) COLLATE CVTEXT,
    Ortsteil                VARCHAR(50) COLLATE CVTEXT,
    Bundesland              VARCHAR(50) COLLATE CVTEXT,
    Lagebezeichnung         VARCHAR(100) COLLATE CVTEXT,
    Etage                   VARCHAR(20) COLLATE CVTEXT,
    Einheit                 VARCHAR(20) COLLATE CVTEXT,   -- number of the flat or plot
    Breitengrad             DOUBLE,
    Längengrad              DOUBLE,
    Gemarkung               VARCHAR(50) COLLATE CVTEXT,
    Flur                    VARCHAR(20) COLLATE CVTEXT,
    Flurstück               VARCHAR(50) COLLATE CVTEXT,
    Grundbuch               VARCHAR(100) COLLATE CVTEXT,
    -- texts of the exposé
    Überschrift             VARCHAR(254) COLLATE CVTEXT,
    Beschreibung            LONGTEXT COLLATE CVTEXT,
    Ausstattung             LONGTEXT COLLATE CVTEXT,
    Lagetext                LONGTEXT COLLATE CVTEXT,
    Sonstiges               LONGTEXT COLLATE CVTEXT,
    -- publication
    Internet                SMALLINT DEFAULT 0,
    Internet_Ab             DATETIME,
    Internet_Bis            DATETIME,
    Adresse_Zeigen          SMALLINT DEFAULT 0,
    Portalkennung           VARCHAR(50) COLLATE CVTEXT,
    Referenz                SMALLINT DEFAULT 0,           -- may be shown as sold
    -- handling
    Schlüssel               VARCHAR(50) COLLATE CVTEXT,
    Besichtigung            VARCHAR(254) COLLATE CVTEXT,
    Reserviert_Bis          DATETIME,
    Vermittelt_Am           DATETIME,
    Vermittelt_Preis        DOUBLE,
    extern_id               VARCHAR(254) COLLATE CVTEXT,
    extern_touch            DATETIME,
    ACL                     VARCHAR(1000) COLLATE CVTEXT,
    FARCHIV                 SMALLINT DEFAULT 0,
    NEU_BEN_DSN             CHAR(36) COLLATE CVTEXT,
    ANGELEGT                DATETIME,
    ÄN_BEN_DSN              CHAR(36) COLLATE CVTEXT,
    TOUCH                   DATETIME
);
CREATE INDEX ix_OBJ_Kennung ON OBJ (Kennung);
CREATE INDEX ix_OBJ_Obj_Dsn ON OBJ (Obj_Dsn) WHERE Obj_Dsn IS NOT NULL;
CREATE INDEX ix_OBJ_AD_ANBIETER_DSN ON OBJ (AD_ANBIETER_DSN) WHERE AD_ANBIETER_DSN IS NOT NULL;
CREATE INDEX ix_OBJ_AD_Eigentümer_Dsn ON OBJ (AD_Eigentümer_Dsn)
    WHERE AD_Eigentümer_Dsn IS NOT NULL;
CREATE INDEX ix_OBJ_Intern ON OBJ (Intern);

-- Addresses: persons and companies.
CREATE TABLE AD (
    DSN                    CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP                  INTEGER NOT NULL DEFAULT 0,
    Kennung                VARCHAR(20) COLLATE CVTEXT,
    AD_DSN                 CHAR(36) COLLATE CVTEXT,      -- the company or family it belongs to
    EMSK_DSN               CHAR(36) COLLATE CVTEXT,
    Firma                  VARCHAR(254) COLLATE CVTEXT,
    Firma2                 VARCHAR(254) COLLATE CVTEXT,
    Position               VARCHAR(100) COLLATE CVTEXT,
    ANREDEKURZ             VARCHAR(100) COLLATE CVTEXT,
    ANREDE                 VARCHAR(100) COLLATE CVTEXT,
    BRIEFANREDE            VARCHAR(254) COLLATE CVTEXT,
    NAME                   VARCHAR(100) COLLATE CVTEXT,  -- given name and family name
    IDX_NAME               VARCHAR(100) COLLATE CVTEXT,  -- the family name alone, kept by the host
    Namenszusatz           VARCHAR(50) COLLATE CVTEXT,
    Geburtsname            VARCHAR(100) COLLATE CVTEXT,
    -- where they live
    Straße                 VARCHAR(254) COLLATE CVTEXT,
    Zusatz                 VARCHAR(100) COLLATE CVTEXT,
    Postfach               VARCHAR(30) COLLATE CVTEXT,
    Land                   VARCHAR(4) COLLATE CVTEXT,
    Land_Plz               VARCHAR(50) COLLATE CVTEXT,
    Ort                    VARCHAR(30) COLLATE CVTEXT,
    Ortsteil               VARCHAR(50) COLLATE CVTEXT,
    Bundesland             VARCHAR(50) COLLATE CVTEXT,
    Breitengrad            DOUBLE,
    Längengrad             DOUBLE,
    -- how to reach them; every number and e-mail address also stands in Tapi
    TELEFON                LONGTEXT COLLATE CVTEXT,      -- items parted by CR LF, fields by TAB
    EMail                  VARCHAR(254) COLLATE CVTEXT,
    EMail2                 VARCHAR(254) COLLATE CVTEXT,
    Homepage               VARCHAR(254) COLLATE CVTEXT,
    Sprache                VARCHAR(20) COLLATE CVTEXT,
    Kontaktweg             VARCHAR(30) COLLATE CVTEXT,
    Erreichbar             VARCHAR(100) COLLATE CVTEXT,
    -- person
    Geburtstag             DATETIME,
    Geburtsort             VARCHAR(50) COLLATE CVTEXT,
    Staatsangehörigkeit    VARCHAR(50) COLLATE CVTEXT,
    Familienstand          VARCHAR(30) COLLATE CVTEXT,
    Kinder                 SMALLINT,
    Beruf                  VARCHAR(100) COLLATE CVTEXT,
    -- company
    Branche                VARCHAR(100) COLLATE CVTEXT,
    Rechtsform             VARCHAR(50) COLLATE CVTEXT,
    Handelsregister        VARCHAR(50) COLLATE CVTEXT,
    UStId                  VARCHAR(20) COLLATE CVTEXT,
    Steuernummer           VARCHAR(30) COLLATE CVTEXT,
    -- bank
    Kontoinhaber           VARCHAR(100) COLLATE CVTEXT,
    IBAN                   VARCHAR(34) COLLATE CVTEXT,
    BIC                    VARCHAR(11) COLLATE CVTEXT,
    Bank                   VARCHAR(100) COLLATE CVTEXT,
    Debitor                VARCHAR(20) COLLATE CVTEXT,
    Kreditor               VARCHAR(20) COLLATE CVTEXT,
    -- identification and consent, as the law asks of agents
    Ausweisart             VARCHAR(30) COLLATE CVTEXT,
    Ausweisnummer          VARCHAR(30) COLLATE CVTEXT,
    Ausweisbehörde         VARCHAR(50) COLLATE CVTEXT,
    Ausweis_Bis            DATETIME,
    Identifiziert_Am       DATETIME,
    Identifiziert_Ben_Dsn  CHAR(36) COLLATE CVTEXT,
    Datenschutz_Am         DATETIME,
    Werbung_Post           SMALLINT DEFAULT 0,
    Werbung_Telefon        SMALLINT DEFAULT 0,
    Werbung_EMail          SMALLINT DEFAULT 0,
    -- in the office
    Stichwort1             VARCHAR(50) COLLATE CVTEXT,
    Stichwort2             VARCHAR(50) COLLATE CVTEXT,
    Quelle                 VARCHAR(50) COLLATE CVTEXT,
    Ben_Dsn                CHAR(36) COLLATE CVTEXT,      -- the user in charge
    Abteilung              INTEGER,
    Notiz                  LONGTEXT COLLATE CVTEXT,
    Foto                   LONGBLOB,
    extern_id              VARCHAR(254) COLLATE CVTEXT,
    extern_touch           DATETIME,
    ACL                    VARCHAR(1000) COLLATE CVTEXT,
    FArchiv                SMALLINT DEFAULT 0,
    NEU_BEN_DSN            CHAR(36) COLLATE CVTEXT,
    ANGELEGT               DATETIME,
    ÄN_BEN_DSN             CHAR(36) COLLATE CVTEXT,
    TOUCH                  DATETIME
);
CREATE INDEX ix_AD_Kennung ON AD (Kennung);
CREATE INDEX ix_AD_AD_DSN ON AD (AD_DSN) WHERE AD_DSN IS NOT NULL;
CREATE INDEX ix_AD_IDX_NAME ON AD (IDX_NAME);
CREATE INDEX ix_AD_NAME ON AD (NAME);
CREATE INDEX ix_AD_Firma ON AD (Firma);
CREATE INDEX ix_AD_Land_Plz ON AD (Land_Plz);

-- Requests of buyers and tenants. What they look for are detail values (ANFDET).
CREATE TABLE ANF (
    DSN               CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP             INTEGER NOT NULL DEFAULT 0,
    Kennung           VARCHAR(20) COLLATE CVTEXT,
    AD_Dsn            CHAR(36) COLLATE CVTEXT,
    EMSK_Dsn          CHAR(36) COLLATE CVTEXT,
    Aktiv             SMALLINT DEFAULT 1,
    Priorität         SMALLINT DEFAULT 1,
    EART              INTEGER DEFAULT 0,           -- 0 buys, 1 rents, 2 both
    Abteilung         INTEGER,
    Manuell           VARCHAR(255) COLLATE CVTEXT,
    Notiz             LONGTEXT COLLATE CVTEXT,
    Status            VARCHAR(30) COLLATE CVTEXT,
    OBJ_Dsn           CHAR(36) COLLATE CVTEXT,     -- the object that brought the request
    Ben_Dsn           CHAR(36) COLLATE CVTEXT,     -- the user in charge
    Quelle            VARCHAR(50) COLLATE CVTEXT,
    Gültig_Ab         DATETIME,
    Gültig_Bis        DATETIME,
    Angebot_Per       VARCHAR(30) COLLATE CVTEXT,  -- how offers are to be sent
    Letztes_Angebot   DATETIME,
    Letzter_Abgleich  DATETIME,
    ACL               VARCHAR(1000) COLLATE CVTEXT,
    FArchiv           SMALLINT DEFAULT 0,
    NEU_BEN_DSN       CHAR(36) COLLATE CVTEXT,
    ANGELEGT          DATETIME,
    ÄN_BEN_DSN        CHAR(36) COLLATE CVTEXT,
    TOUCH             DATETIME
);
CREATE INDEX ix_ANF_Kennung ON ANF (Kennung);
CREATE INDEX ix_ANF_AD_Dsn ON ANF (AD_Dsn) WHERE AD_Dsn IS NOT NULL;

-- Case files.
CREATE TABLE AKTEN (
    DSN              CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP            INTEGER NOT NULL DEFAULT 0,
    Kennung          VARCHAR(20) COLLATE CVTEXT,
    EMSK_Dsn         CHAR(36) COLLATE CVTEXT,
    Rubrum           VARCHAR(50) COLLATE CVTEXT,
    Notiz            LONGTEXT COLLATE CVTEXT,
    Aktenzeichen     VARCHAR(50) COLLATE CVTEXT,
    Status           VARCHAR(30) COLLATE CVTEXT,
    Ablage           VARCHAR(50) COLLATE CVTEXT,  -- where the paper is
    AD_Dsn           CHAR(36) COLLATE CVTEXT,
    OBJ_Dsn          CHAR(36) COLLATE CVTEXT,
    Projekte_Dsn     CHAR(36) COLLATE CVTEXT,
    Ben_Dsn          CHAR(36) COLLATE CVTEXT,     -- the user in charge
    Abteilung        INTEGER,
    Beginn           DATETIME,
    Ende             DATETIME,
    Aufbewahren_Bis  DATETIME,
    ACL              VARCHAR(1000) COLLATE CVTEXT,
    FArchiv          SMALLINT DEFAULT 0,
    NEU_BEN_DSN      CHAR(36) COLLATE CVTEXT,
    ANGELEGT         DATETIME,
    ÄN_BEN_DSN       CHAR(36) COLLATE CVTEXT,
    TOUCH            DATETIME
);
CREATE INDEX ix_AKTEN_Kennung ON AKTEN (Kennung);
CREATE INDEX ix_AKTEN_Rubrum ON AKTEN (Rubrum);
CREATE INDEX ix_AKTEN_AD_Dsn ON AKTEN (AD_Dsn) WHERE AD_Dsn IS NOT NULL;
CREATE INDEX ix_AKTEN_OBJ_Dsn ON AKTEN (OBJ_Dsn) WHERE OBJ_Dsn IS NOT NULL;

-- Projects.
CREATE TABLE Projekte (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    Kennung       VARCHAR(20) COLLATE CVTEXT,
    Projekte_Dsn  CHAR(36) COLLATE CVTEXT,  -- the project this one is part of
    Bezeichnung   VARCHAR(50) COLLATE CVTEXT,
    Notiz         LONGTEXT COLLATE CVTEXT,
    Stichwort     VARCHAR(100) COLLATE CVTEXT,
    Stichwort2    VARCHAR(100) COLLATE CVTEXT,
    EMSK_Dsn      CHAR(36) COLLATE CVTEXT,
    Status        VARCHAR(30) COLLATE CVTEXT,
    AD_Dsn        CHAR(36) COLLATE CVTEXT,
    OBJ_Dsn       CHAR(36) COLLATE CVTEXT,
    Ben_Dsn       CHAR(36) COLLATE CVTEXT,  -- the user in charge
    Abteilung     INTEGER,
    Beginn        DATETIME,
    Ende          DATETIME,
    Budget        DOUBLE,
    Fortschritt   SMALLINT,                 -- per cent
    ACL           VARCHAR(1000) COLLATE CVTEXT,
    FArchiv       SMALLINT DEFAULT 0,
    NEU_BEN_DSN   CHAR(36) COLLATE CVTEXT,
    ANGELEGT      DATETIME,
    ÄN_BEN_DSN    CHAR(36) COLLATE CVTEXT,
    TOUCH         DATETIME
);
CREATE INDEX ix_Projekte_Kennung ON Projekte (Kennung);
CREATE INDEX ix_Projekte_Projekte_Dsn ON Projekte (Projekte_Dsn) WHERE Projekte_Dsn IS NOT NULL;
CREATE INDEX ix_Projekte_Bezeichnung ON Projekte (Bezeichnung);

-- Contracts.
CREATE TABLE VERTRÄGE (
    DSN                  CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP                INTEGER NOT NULL DEFAULT 0,
    Kennung              VARCHAR(20) COLLATE CVTEXT,
    Aktiv                SMALLINT DEFAULT 1,
    Vertragsnummer       VARCHAR(50) COLLATE CVTEXT,
    Intern               VARCHAR(40) COLLATE CVTEXT,
    Notiz                LONGTEXT COLLATE CVTEXT,
    EMSK_Dsn             CHAR(36) COLLATE CVTEXT,
    Status               VARCHAR(30) COLLATE CVTEXT,
    AD_Nehmer_Dsn        CHAR(36) COLLATE CVTEXT,
    AD_Gesellschaft_Dsn  CHAR(36) COLLATE CVTEXT,
    AD_Vermittler_Dsn    CHAR(36) COLLATE CVTEXT,
    OBJ_Dsn              CHAR(36) COLLATE CVTEXT,
    Projekte_Dsn         CHAR(36) COLLATE CVTEXT,
    Ben_Dsn              CHAR(36) COLLATE CVTEXT,  -- the user in charge
    Abteilung            INTEGER,
    Abschluss            DATETIME,
    Beginn               DATETIME,
    Ende                 DATETIME,
    Kündigung_Zum        DATETIME,
    Kündigungsfrist      SMALLINT,                 -- months
    Summe                DOUBLE,
    Beitrag              DOUBLE,
    Zahlweise            VARCHAR(30) COLLATE CVTEXT,
    Provision            DOUBLE,
    ACL                  VARCHAR(1000) COLLATE CVTEXT,
    FArchiv              SMALLINT DEFAULT 0,
    NEU_BEN_DSN          CHAR(36) COLLATE CVTEXT,
    ANGELEGT             DATETIME,
    ÄN_BEN_DSN           CHAR(36) COLLATE CVTEXT,
    TOUCH                DATETIME
);
CREATE INDEX ix_VERTRÄGE_Kennung ON VERTRÄGE (Kennung);
CREATE INDEX ix_VERTRÄGE_Vertragsnummer ON VERTRÄGE (Vertragsnummer);
CREATE INDEX ix_VERTRÄGE_AD_Nehmer_Dsn ON VERTRÄGE (AD_Nehmer_Dsn) WHERE AD_Nehmer_Dsn IS NOT NULL;
CREATE INDEX ix_VERTRÄGE_AD_Gesellschaft_Dsn ON VERTRÄGE (AD_Gesellschaft_Dsn)
    WHERE AD_Gesellschaft_Dsn IS NOT NULL;
CREATE INDEX ix_VERTRÄGE_AD_Vermittler_Dsn ON VERTRÄGE (AD_Vermittler_Dsn)
    WHERE AD_Vermittler_Dsn IS NOT NULL;
CREATE INDEX ix_VERTRÄGE_OBJ_Dsn ON VERTRÄGE (OBJ_Dsn) WHERE OBJ_Dsn IS NOT NULL;

-- Detail sheets of addresses. New sheets get no Kennung; the column is there to be searched.
CREATE TABLE Details (
    DSN          CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP        INTEGER NOT NULL DEFAULT 0,
    Kennung      VARCHAR(20) COLLATE CVTEXT,
    Ad_Dsn       CHAR(36) COLLATE CVTEXT,
    EMSK_DSN     CHAR(36) COLLATE CVTEXT,
    Oberbegriff  VARCHAR(50) COLLATE CVTEXT,
    Notiz        LONGTEXT COLLATE CVTEXT,
    Ben_Dsn      CHAR(36) COLLATE CVTEXT,  -- the user in charge
    ACL          VARCHAR(1000) COLLATE CVTEXT,
    FARCHIV      SMALLINT DEFAULT 0,
    NEU_BEN_DSN  CHAR(36) COLLATE CVTEXT,
    ANGELEGT     DATETIME,
    ÄN_BEN_DSN   CHAR(36) COLLATE CVTEXT,
    TOUCH        DATETIME
);
CREATE INDEX ix_Details_Kennung ON Details (Kennung) WHERE Kennung IS NOT NULL;
CREATE INDEX ix_Details_Ad_Dsn_EMSK_DSN ON Details (Ad_Dsn, EMSK_DSN);
CREATE INDEX ix_Details_Oberbegriff ON Details (Oberbegriff);

-- ----------------------------------------------------------------------------------------------
-- Feature links: one row links one record (Link_DSN) to one feature (MKM_DSN). The pair is indexed
-- both ways: the features of a record, the records with a feature.
-- ----------------------------------------------------------------------------------------------

CREATE TABLE AKTMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_AKTMKM_record ON AKTMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_AKTMKM_feature ON AKTMKM (MKM_DSN, Link_DSN);

CREATE TABLE OBJMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_OBJMKM_record ON OBJMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_OBJMKM_feature ON OBJMKM (MKM_DSN, Link_DSN);

CREATE TABLE ADMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_ADMKM_record ON ADMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_ADMKM_feature ON ADMKM (MKM_DSN, Link_DSN);

CREATE TABLE ANFMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_ANFMKM_record ON ANFMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_ANFMKM_feature ON ANFMKM (MKM_DSN, Link_DSN);

CREATE TABLE AKTENMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_AKTENMKM_record ON AKTENMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_AKTENMKM_feature ON AKTENMKM (MKM_DSN, Link_DSN);

CREATE TABLE PROJEKTEMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_PROJEKTEMKM_record ON PROJEKTEMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_PROJEKTEMKM_feature ON PROJEKTEMKM (MKM_DSN, Link_DSN);

CREATE TABLE VERTRÄGEMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_VERTRÄGEMKM_record ON VERTRÄGEMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_VERTRÄGEMKM_feature ON VERTRÄGEMKM (MKM_DSN, Link_DSN);

CREATE TABLE DETAILSMKM (
    DSN       CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP     INTEGER NOT NULL DEFAULT 0,
    Link_DSN  CHAR(36) COLLATE CVTEXT,
    MKM_DSN   CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_DETAILSMKM_record ON DETAILSMKM (Link_DSN, MKM_DSN);
CREATE INDEX ix_DETAILSMKM_feature ON DETAILSMKM (MKM_DSN, Link_DSN);

-- ----------------------------------------------------------------------------------------------
-- Detail values: one row holds one value of one field kind for one record. A record may hold
-- several rows of a field kind; the one with the lowest DSN counts.
-- ----------------------------------------------------------------------------------------------

CREATE TABLE AKTDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    AKT_DSN       CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_AKTDET_record ON AKTDET (AKT_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_AKTDET_kind ON AKTDET (FldArt_DSN, AKT_DSN);

CREATE TABLE OBJDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    OBJ_DSN       CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_OBJDET_record ON OBJDET (OBJ_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_OBJDET_kind ON OBJDET (FldArt_DSN, OBJ_DSN);

CREATE TABLE ADDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    AD_DSN        CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_ADDET_record ON ADDET (AD_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_ADDET_kind ON ADDET (FldArt_DSN, AD_DSN);

CREATE TABLE ANFDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    ANF_DSN       CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_ANFDET_record ON ANFDET (ANF_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_ANFDET_kind ON ANFDET (FldArt_DSN, ANF_DSN);

CREATE TABLE AKTENDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    AKTEN_DSN     CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_AKTENDET_record ON AKTENDET (AKTEN_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_AKTENDET_kind ON AKTENDET (FldArt_DSN, AKTEN_DSN);

CREATE TABLE PROJEKTEDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    PROJEKTE_DSN  CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_PROJEKTEDET_record ON PROJEKTEDET (PROJEKTE_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_PROJEKTEDET_kind ON PROJEKTEDET (FldArt_DSN, PROJEKTE_DSN);

CREATE TABLE VERTRÄGEDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    Verträge_Dsn  CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_VERTRÄGEDET_record ON VERTRÄGEDET (Verträge_Dsn, FldArt_DSN, DSN);
CREATE INDEX ix_VERTRÄGEDET_kind ON VERTRÄGEDET (FldArt_DSN, Verträge_Dsn);

CREATE TABLE DETAILSDET (
    DSN           CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP         INTEGER NOT NULL DEFAULT 0,
    DETAILS_DSN   CHAR(36) COLLATE CVTEXT,
    FldArt_DSN    CHAR(36) COLLATE CVTEXT,
    Eingabe       VARCHAR(100) COLLATE CVTEXT,
    Von_Num       DOUBLE DEFAULT 0,
    Bis_Num       DOUBLE DEFAULT 0,
    von_str       VARCHAR(100) COLLATE CVTEXT,
    bis_str       VARCHAR(100) COLLATE CVTEXT,
    FldArtOp_Dsn  CHAR(36) COLLATE CVTEXT,
    Link_DSN      CHAR(36) COLLATE CVTEXT,
    ACL           VARCHAR(1000) COLLATE CVTEXT
);
CREATE INDEX ix_DETAILSDET_record ON DETAILSDET (DETAILS_DSN, FldArt_DSN, DSN);
CREATE INDEX ix_DETAILSDET_kind ON DETAILSDET (FldArt_DSN, DETAILS_DSN);

-- ----------------------------------------------------------------------------------------------
-- Catalogues. The columns named like a main table say for which tables an entry is offered.
-- ----------------------------------------------------------------------------------------------

-- Features.
CREATE TABLE Mkm (
    DSN          CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP        INTEGER NOT NULL DEFAULT 0,
    Aktiv        SMALLINT DEFAULT 1,
    Merkmal      VARCHAR(20) COLLATE CVTEXT,
    Sortierung   VARCHAR(10) COLLATE CVTEXT,
    Notiz        LONGTEXT COLLATE CVTEXT,
    Gruppe       VARCHAR(254) COLLATE CVTEXT,
    BackColor    INTEGER DEFAULT 16777215,
    FontColor    INTEGER DEFAULT 0,
    Benutzer     VARCHAR(50) COLLATE CVTEXT,  -- whose own feature this is (Login_Name)
    akt          SMALLINT DEFAULT 0,
    obj          SMALLINT DEFAULT 0,
    ad           SMALLINT DEFAULT 0,
    anf          SMALLINT DEFAULT 0,
    akten        SMALLINT DEFAULT 0,
    projekte     SMALLINT DEFAULT 0,
    verträge     SMALLINT DEFAULT 0,
    details      SMALLINT DEFAULT 0,
    NEU_BEN_DSN  CHAR(36) COLLATE CVTEXT,
    ANGELEGT     DATETIME,
    ÄN_BEN_DSN   CHAR(36) COLLATE CVTEXT,
    TOUCH        DATETIME
);
CREATE INDEX ix_Mkm_Merkmal ON Mkm (Merkmal);
CREATE INDEX ix_Mkm_Benutzer ON Mkm (Benutzer) WHERE Benutzer IS NOT NULL;

-- Field kinds. Typ:
-- 0 option, 1 currency, 2 number, 3 text, 4 yes/no, 5 date, 6 postcode, 7 address.
CREATE TABLE FldArt (
    DSN            CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP          INTEGER NOT NULL DEFAULT 0,
    Aktiv          SMALLINT DEFAULT 1,
    Kürzel         VARCHAR(25) COLLATE CVTEXT,
    Typ            SMALLINT DEFAULT 3,
    Sortierung     VARCHAR(10) COLLATE CVTEXT,
    Plausibilität  VARCHAR(40) COLLATE CVTEXT,
    Format         VARCHAR(50) COLLATE CVTEXT,
    Notiz          LONGTEXT COLLATE CVTEXT,
    Intern         VARCHAR(254) COLLATE CVTEXT,
    Gruppen        VARCHAR(1000) COLLATE CVTEXT,
    akt            SMALLINT DEFAULT 0,
    obj            SMALLINT DEFAULT 0,
    ad             SMALLINT DEFAULT 0,
    anf            SMALLINT DEFAULT 0,
    akten          SMALLINT DEFAULT 0,
    projekte       SMALLINT DEFAULT 0,
    verträge       SMALLINT DEFAULT 0,
    details        SMALLINT DEFAULT 0,
    NEU_BEN_DSN    CHAR(36) COLLATE CVTEXT,
    ANGELEGT       DATETIME,
    ÄN_BEN_DSN     CHAR(36) COLLATE CVTEXT,
    TOUCH          DATETIME
);
CREATE INDEX ix_FldArt_Kürzel ON FldArt (Kürzel);

-- Options of the field kinds of type 0.
CREATE TABLE FldArtOp (
    DSN          CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP        INTEGER NOT NULL DEFAULT 0,
    FldArt_Dsn   CHAR(36) COLLATE CVTEXT,
    Bezeichnung  VARCHAR(250) COLLATE CVTEXT,
    Wert         VARCHAR(30) COLLATE CVTEXT,
    Kurz         VARCHAR(7) COLLATE CVTEXT,
    Defaultwert  SMALLINT DEFAULT 0,
    NEU_BEN_DSN  CHAR(36) COLLATE CVTEXT,
    ANGELEGT     DATETIME,
    ÄN_BEN_DSN   CHAR(36) COLLATE CVTEXT,
    TOUCH        DATETIME
);
CREATE INDEX ix_FldArtOp_FldArt_Dsn_Bezeichnung ON FldArtOp (FldArt_Dsn, Bezeichnung);

-- Entry masks.
CREATE TABLE EMSK (
    DSN          CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP        INTEGER NOT NULL DEFAULT 0,
    Aktiv        SMALLINT DEFAULT 1,
    Name         VARCHAR(50) COLLATE CVTEXT,
    EArt         INTEGER DEFAULT 0,  -- 0 sale, 1 rent, 2 both
    Notiz        LONGTEXT COLLATE CVTEXT,
    Gruppen      VARCHAR(1000) COLLATE CVTEXT,
    akt          SMALLINT DEFAULT 0,
    obj          SMALLINT DEFAULT 0,
    ad           SMALLINT DEFAULT 0,
    anf          SMALLINT DEFAULT 0,
    akten        SMALLINT DEFAULT 0,
    projekte     SMALLINT DEFAULT 0,
    verträge     SMALLINT DEFAULT 0,
    details      SMALLINT DEFAULT 0,
    NEU_BEN_DSN  CHAR(36) COLLATE CVTEXT,
    ANGELEGT     DATETIME,
    ÄN_BEN_DSN   CHAR(36) COLLATE CVTEXT,
    TOUCH        DATETIME
);
CREATE INDEX ix_EMSK_Name ON EMSK (Name);

-- Field kinds of the entry masks, shown in the order of DSN.
CREATE TABLE EmskDet (
    DSN              CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP            INTEGER NOT NULL DEFAULT 0,
    EMSK_DSN         CHAR(36) COLLATE CVTEXT,
    FLDART_DSN       CHAR(36) COLLATE CVTEXT,
    DEFAULT_ACL      VARCHAR(1000) COLLATE CVTEXT,
    PFLICHTFELD      SMALLINT DEFAULT 0,
    BACKCOLOR        INTEGER DEFAULT 0,
    FLDARTOP_FILTER  VARCHAR(250) COLLATE CVTEXT
);
CREATE INDEX ix_EmskDet_EMSK_DSN_FLDART_DSN ON EmskDet (EMSK_DSN, FLDART_DSN);

-- Activity types: what an activity of the type starts with.
CREATE TABLE Aktivitätenarten (
    DSN                CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP              INTEGER NOT NULL DEFAULT 0,
    Aktiv              SMALLINT DEFAULT 1,
    Priorität          SMALLINT DEFAULT 1,
    Name               VARCHAR(50) COLLATE CVTEXT,
    Kurz               VARCHAR(5) COLLATE CVTEXT,
    Notiz              LONGTEXT COLLATE CVTEXT,
    default_views      VARCHAR(50) COLLATE CVTEXT,
    Vorlage            INTEGER DEFAULT 0,  -- days until the follow-up
    Minuten            DOUBLE DEFAULT 0,   -- minutes until the follow-up
    Kosten             DOUBLE DEFAULT 0,
    km                 DOUBLE DEFAULT 0,
    BackColor          INTEGER DEFAULT 16777215,
    FontColor          INTEGER DEFAULT 0,
    Ohne_Uhrzeit       SMALLINT DEFAULT 0,
    Kalender           SMALLINT DEFAULT 0,
    Quickakt           SMALLINT DEFAULT 0,
    Erledigt           SMALLINT DEFAULT 0,
    Adlos              SMALLINT DEFAULT 0,
    PeriodenArt        SMALLINT,
    PeriodenIntervall  INTEGER,
    default_emsk_dsn   CHAR(36) COLLATE CVTEXT,
    Sortierung         VARCHAR(10) COLLATE CVTEXT,
    NEU_BEN_DSN        CHAR(36) COLLATE CVTEXT,
    ANGELEGT           DATETIME,
    ÄN_BEN_DSN         CHAR(36) COLLATE CVTEXT,
    TOUCH              DATETIME
);
CREATE INDEX ix_Aktivitätenarten_Name ON Aktivitätenarten (Name);

-- ----------------------------------------------------------------------------------------------
-- The installation and its users.
-- ----------------------------------------------------------------------------------------------

-- Master data: one row.
CREATE TABLE Std (
    DSN               CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP             INTEGER NOT NULL DEFAULT 0,
    Firma             VARCHAR(254) COLLATE CVTEXT,
    Firma2            VARCHAR(254) COLLATE CVTEXT,
    Inhaber           VARCHAR(100) COLLATE CVTEXT,
    Straße            VARCHAR(254) COLLATE CVTEXT,
    Land              VARCHAR(4) COLLATE CVTEXT,
    Land_Plz          VARCHAR(50) COLLATE CVTEXT,
    Ort               VARCHAR(30) COLLATE CVTEXT,
    Bundesland        VARCHAR(50) COLLATE CVTEXT,  -- decides the legal holidays
    Telefon           VARCHAR(50) COLLATE CVTEXT,
    Telefax           VARCHAR(50) COLLATE CVTEXT,
    Email             VARCHAR(254) COLLATE CVTEXT,
    Homepage          VARCHAR(254) COLLATE CVTEXT,
    Handelsregister   VARCHAR(50) COLLATE CVTEXT,
    UStId             VARCHAR(20) COLLATE CVTEXT,
    Steuernummer      VARCHAR(30) COLLATE CVTEXT,
    Aufsichtsbehörde  VARCHAR(254) COLLATE CVTEXT,
    Bank              VARCHAR(100) COLLATE CVTEXT,
    IBAN              VARCHAR(34) COLLATE CVTEXT,
    BIC               VARCHAR(11) COLLATE CVTEXT,
    Währung           VARCHAR(10) COLLATE CVTEXT,
    MwSt              DOUBLE,                      -- per cent
    ANREDE            LONGTEXT COLLATE CVTEXT,     -- items as in AD.TELEFON: short, long, letter
    TITEL             LONGTEXT COLLATE CVTEXT,     -- academic titles, CR LF between
    MMDateiLang       VARCHAR(50) COLLATE CVTEXT,  -- word in the names of long picture files
    MMDateiKurz       VARCHAR(50) COLLATE CVTEXT,  -- word in the name of the short picture file
    -- the next human key of each table; the host answers these from cv_counter
    Kennung_AKT       VARCHAR(20) COLLATE CVTEXT,
    Kennung_AD        VARCHAR(20) COLLATE CVTEXT,
    Kennung_OBJ       VARCHAR(20) COLLATE CVTEXT,
    Kennung_Projekte  VARCHAR(20) COLLATE CVTEXT,
    Kennung_ANF       VARCHAR(20) COLLATE CVTEXT,
    Kennung_AKTEN     VARCHAR(20) COLLATE CVTEXT,
    Kennung_VERTRÄGE  VARCHAR(20) COLLATE CVTEXT,
    NEU_BEN_DSN       CHAR(36) COLLATE CVTEXT,
    ANGELEGT          DATETIME,
    ÄN_BEN_DSN        CHAR(36) COLLATE CVTEXT,
    TOUCH             DATETIME
);

-- Users. Passwords are kept apart, in cv_password.
CREATE TABLE Benutzer (
    DSN               CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP             INTEGER NOT NULL DEFAULT 0,
    Login_Name        VARCHAR(50) COLLATE CVTEXT,
    Name              VARCHAR(100) COLLATE CVTEXT,
    Kurz              VARCHAR(10) COLLATE CVTEXT,
    AKTIV             SMALLINT DEFAULT 1,       -- 1 may log on
    Chef              SMALLINT DEFAULT 0,       -- 1 administrator
    Email             VARCHAR(254) COLLATE CVTEXT,
    Telefon           VARCHAR(50) COLLATE CVTEXT,
    Mobil             VARCHAR(50) COLLATE CVTEXT,
    Abteilung         INTEGER,
    Gruppen           VARCHAR(1000) COLLATE CVTEXT,
    AD_Dsn            CHAR(36) COLLATE CVTEXT,
    Rechteschablonen  LONGTEXT COLLATE CVTEXT,  -- lines of name|access string; see README.md
    STD_MKM1          CHAR(36) COLLATE CVTEXT,  -- features of new records
    STD_MKM2          CHAR(36) COLLATE CVTEXT,
    STD_MKM3          CHAR(36) COLLATE CVTEXT,
    STD_MKM4          CHAR(36) COLLATE CVTEXT,
    STD_MKM5          CHAR(36) COLLATE CVTEXT,
    VOR_MKM1          CHAR(36) COLLATE CVTEXT,  -- features of templates
    VOR_MKM2          CHAR(36) COLLATE CVTEXT,
    VOR_MKM3          CHAR(36) COLLATE CVTEXT,
    VOR_MKM4          CHAR(36) COLLATE CVTEXT,
    VOR_MKM5          CHAR(36) COLLATE CVTEXT,
    FaxArt_Dsn        CHAR(36) COLLATE CVTEXT,  -- activity type of e-mails
    ScanArt_Dsn       CHAR(36) COLLATE CVTEXT,  -- activity type of scanned documents
    Signatur          LONGTEXT COLLATE CVTEXT,
    NEU_BEN_DSN       CHAR(36) COLLATE CVTEXT,
    ANGELEGT          DATETIME,
    ÄN_BEN_DSN        CHAR(36) COLLATE CVTEXT,
    TOUCH             DATETIME
);
CREATE INDEX ix_Benutzer_Login_Name ON Benutzer (Login_Name);

-- The version of this schema: one row. One column only, so that statements may join the table in
-- without making another table's names ambiguous.
CREATE TABLE Version (
    Version  DOUBLE
);

-- ----------------------------------------------------------------------------------------------
-- Look-up tables.
-- ----------------------------------------------------------------------------------------------

-- Every phone number and e-mail address of every address, kept by the host from AD.TELEFON and
-- AD.EMail; the text is the one that stands there.
CREATE TABLE Tapi (
    DSN     CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP   INTEGER NOT NULL DEFAULT 0,
    Nummer  VARCHAR(254) COLLATE CVTEXT,
    Ad_Dsn  CHAR(36) COLLATE CVTEXT
);
CREATE INDEX ix_Tapi_Nummer ON Tapi (Nummer);
CREATE INDEX ix_Tapi_Ad_Dsn ON Tapi (Ad_Dsn);

-- Places and countries.
CREATE TABLE postorte (
    DSN      CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP    INTEGER NOT NULL DEFAULT 0,
    alort    VARCHAR(20) COLLATE CVTEXT,  -- countries: "land" and four characters
    oname    VARCHAR(100) COLLATE CVTEXT,
    ozusatz  VARCHAR(50) COLLATE CVTEXT
);
CREATE INDEX ix_postorte_alort ON postorte (alort);
CREATE INDEX ix_postorte_oname ON postorte (oname);

-- Postcodes and dialling prefixes of the places.
CREATE TABLE postplz (
    DSN      CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP    INTEGER NOT NULL DEFAULT 0,
    alort    VARCHAR(20) COLLATE CVTEXT,
    plz      VARCHAR(10) COLLATE CVTEXT,
    vorwahl  VARCHAR(20) COLLATE CVTEXT
);
CREATE INDEX ix_postplz_alort ON postplz (alort);
CREATE INDEX ix_postplz_plz ON postplz (plz);

-- ----------------------------------------------------------------------------------------------
-- Attachments. Their content lies in files; this table says which file is whose.
-- ----------------------------------------------------------------------------------------------

CREATE TABLE Blob (
    DSN                CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    STAMP              INTEGER NOT NULL DEFAULT 0,
    uidLINK_DSN        CHAR(36) COLLATE CVTEXT,       -- the record that owns the attachment
    lngTyp             INTEGER,                       -- 6 content is stored, 7 only the path
    strsourcefilename  VARCHAR(1000) COLLATE CVTEXT,  -- the path that the file came from
    mail_attachment    SMALLINT DEFAULT 0,            -- sent with an e-mail
    strInfo            VARCHAR(254) COLLATE CVTEXT,
    strStoredName      VARCHAR(254) COLLATE CVTEXT,   -- in the attachment folder; null for a link
    dblSize            DOUBLE,                        -- bytes
    strSha256          CHAR(64) COLLATE CVTEXT,       -- of the content, lower-case hexadecimal
    datSaved           DATETIME
);
CREATE INDEX ix_Blob_uidLINK_DSN ON Blob (uidLINK_DSN);
CREATE INDEX ix_Blob_strStoredName ON Blob (strStoredName);  -- is a file still needed?

-- ----------------------------------------------------------------------------------------------
-- The host's own tables. No script needs them; no statement of the library names them.
-- ----------------------------------------------------------------------------------------------

CREATE TABLE cv_password (
    Benutzer_DSN  CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    hash          VARCHAR(254),  -- method, its parameters, salt and hash in one text
    changed       DATETIME
);

-- Failed log-ons since the last one that succeeded.
CREATE TABLE cv_logon (
    Benutzer_DSN  CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,  -- or ? and a number: names that nobody has
    failures      INTEGER NOT NULL,
    next_try      DOUBLE NOT NULL  -- seconds since 1970: nobody's turn before
);

-- Last human key given out, by the column of Std that asks for it.
CREATE TABLE cv_counter (
    name         VARCHAR(50) COLLATE CVTEXT NOT NULL PRIMARY KEY,
    prefix       VARCHAR(8) COLLATE CVTEXT,  -- "A-" and 100001 give "A-100001"
    last_number  INTEGER NOT NULL DEFAULT 0
);

-- Settings of scripts and of the host, as in an initialisation file.
CREATE TABLE cv_setting (
    section  VARCHAR(100) COLLATE CVTEXT NOT NULL,
    key      VARCHAR(100) COLLATE CVTEXT NOT NULL,
    value    LONGTEXT COLLATE CVTEXT,
    PRIMARY KEY (section, key)
);
