-- Failed log-ons since the last one that succeeded.
CREATE TABLE cv_logon (
    Benutzer_DSN  CHAR(36) COLLATE CVTEXT NOT NULL PRIMARY KEY,  -- or ? and a number: names that nobody has
    failures      INTEGER NOT NULL,
    next_try      DOUBLE NOT NULL  -- seconds since 1970: nobody's turn before
);
