#include <chrono>
#include <thread>

#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

using CallersStatement = HostTest;

TEST_F(CallersStatement, MayOnlyRead) {
    add_activity("bleibt");
    const std::string outside = folder.path("fremd.db");
    for (const std::string& statement : std::vector<std::string>{
             "DELETE FROM AKT",
             "UPDATE AKT SET Subject='x'",
             "INSERT INTO AKT (DSN) VALUES ('x')",
             "REPLACE INTO AKT (DSN) VALUES ('x')",
             "DROP TABLE AKT",
             "CREATE TABLE x (y)",
             "CREATE TEMP TABLE x (y)",
             "ALTER TABLE AKT ADD x",
             "ATTACH '" + outside + "' AS x",
             "VACUUM INTO '" + outside + "'",
             "VACUUM",
             "PRAGMA journal_mode=DELETE",
             "PRAGMA table_info(AKT)",
             "BEGIN",
             "COMMIT",
             "ROLLBACK",
             "SAVEPOINT x",
             "ANALYZE",
             "REINDEX",
             "EXPLAIN SELECT 1",
             "EXPLAIN QUERY PLAN SELECT * FROM AKT",
             "WITH x AS (SELECT 1) DELETE FROM AKT",
             "DELETE FROM AKT RETURNING DSN",
             "SELECT 1; DELETE FROM AKT",
             "SELECT 1; SELECT 2",
             "SELECT 1 FROM AKT WHERE Subject='' ; DROP TABLE AKT --'",
             "SELECT * FROM cv_password",
             "SELECT hash FROM CV_Password",
             "SELECT count(*) FROM cv_password",
             "SELECT (SELECT hash FROM cv_password) FROM AKT",
             "SELECT DSN FROM AKT UNION SELECT hash FROM cv_password",
             "SELECT u.Name FROM Benutzer AS u JOIN cv_password AS p ON p.hash > ''",
             "SELECT 1 FROM AKT WHERE EXISTS (SELECT * FROM [cv_password])",
             "WITH x AS (SELECT hash FROM cv_password) SELECT * FROM x",
             "SELECT * FROM sqlite_master",
             "SELECT sql FROM sqlite_schema",
             "SELECT count(*) FROM sqlite_temp_master",
             "SELECT * FROM pragma_table_info('cv_password')",
             "SELECT * FROM pragma_database_list",
             "SELECT * FROM dbstat",
             "SELECT load_extension('x')",
             "SELECT readfile('/etc/passwd')",
             "SELECT writefile('" + outside + "', 'x')",
             "SELECT edit('x')",
             "SELECT fts3_tokenizer('x')",
             "SELECT randomblob(1000000000)",
             "SELECT zeroblob(1000000000)",
             "SELECT sqlite_version()",
             "SELECT * FROM json_each('[1]')",
             "SELECT ?",
             "SELECT * FROM AKT WHERE Subject=:x",
             "SELECT @x, $y",
             "VALUES (1); DELETE FROM AKT",
             "",
             "   ",
             "-- nichts",
             ";"}) {
        EXPECT_THROW(select(statement), AutomationError) << statement;
    }
    EXPECT_EQ(single("SELECT Subject FROM AKT"), Variant("bleibt"));
    EXPECT_FALSE(std::filesystem::exists(outside));
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(1));
}

TEST_F(CallersStatement, MayUseWhatReadingNeeds) {
    add_activity("Öl");
    for (const char* statement : {
             "SELECT * FROM AKT;",
             "SELECT * FROM AKT -- alles",
             "WITH x AS (SELECT DSN FROM AKT) SELECT count(*) FROM x",
             "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<5) SELECT i "
             "FROM n",
             "SELECT upper(Subject), RIGHT(Subject,1), LEFT(Subject,1), LEN(Subject) FROM AKT",
             "SELECT count(*) FROM (SELECT 1 FROM AKT) AS t",
             "SELECT CAST(DSN AS CHAR(36)) FROM AKT",
             "SELECT DISTINCT Subject FROM AKT GROUP BY Subject HAVING count(*) > 0",
             "SELECT NOW(), CONCAT('a', 1, Subject) FROM AKT",
         }) {
        EXPECT_FALSE(select(statement).at_end()) << statement;
    }
    EXPECT_EQ(single("SELECT upper(Subject) FROM AKT"), Variant("ÖL"));
    EXPECT_EQ(single("SELECT RIGHT('landDE  ',4)"), Variant("DE  "));
    EXPECT_EQ(single("SELECT LEFT(Subject,1) FROM AKT"), Variant("Ö"));
}

TEST_F(CallersStatement, IsQuotedWhereItIsRefused) {
    const std::string statement = "SELECT * FROM Nichts WHERE x='" + std::string(300, 'y') + "'";
    const AutomationError error = error_of([&] { select(statement); });
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::StatementRefused));
    EXPECT_NE(error.description().find("Nichts"), std::string::npos);
    EXPECT_NE(error.description().find(statement.substr(0, 200)), std::string::npos);
    EXPECT_EQ(error.description().find(statement.substr(0, 201)), std::string::npos);
}

TEST_F(CallersStatement, ComparesTextsAsUsersExpect) {
    for (const char* subject : {"Öl", "Olm", "Ozean", "Straße", "K-1      "}) {
        add_activity(subject);
    }
    const auto count = [this](const std::string& condition) {
        return single("SELECT count(*) FROM AKT WHERE " + condition);
    };
    EXPECT_EQ(count("Subject='ÖL '"), Variant(1));
    EXPECT_EQ(count("Subject='Ol'"), Variant(0));
    EXPECT_EQ(count("Subject IN ('öl','STRAßE')"), Variant(2));
    EXPECT_EQ(count("Subject='Strasse'"), Variant(0));
    EXPECT_EQ(count("Subject LIKE 'ö%'"), Variant(1));
    EXPECT_EQ(count("Subject LIKE 'O%'"), Variant(2));
    EXPECT_EQ(count("Subject LIKE 'k-1'"), Variant(1));
    EXPECT_EQ(count("Subject LIKE '%E%'"), Variant(2));
    EXPECT_EQ(count("RIGHT(Subject,2)='ßE'"), Variant(1));
    EXPECT_EQ(count("Subject < 'P'"), Variant(4));
    const RecordSet sorted = select("SELECT Subject FROM AKT ORDER BY Subject");
    std::string order;
    for (; !sorted.at_end(); sorted.move_next()) {
        order += sorted.value_at(0).get<std::string>().substr(0, 3);
    }
    EXPECT_EQ(order, "K-1ÖlOlmOzeStr");
}

TEST_F(CallersStatement, ComparesResultsOfExpressionsAsUsersExpect) {
    for (const char* subject : {"Öl", "Olm", "ozean ", "Zaun"}) {
        add_activity(subject);
    }
    const auto count = [this](const std::string& condition) {
        return single("SELECT count(*) FROM AKT WHERE " + condition);
    };
    EXPECT_EQ(count("UPPER(Subject)='öl'"), Variant(1));
    EXPECT_EQ(count("LOWER(Subject) IN ('ÖL','Ozean')"), Variant(2));
    EXPECT_EQ(count("'ÖL'=LOWER(Subject)"), Variant(1));
    EXPECT_EQ(count("Subject || Subject = 'ölöl'"), Variant(1));
    EXPECT_EQ(count("LEFT(Subject,2) BETWEEN 'O' AND 'OM'"), Variant(2));
    EXPECT_EQ(count("CASE WHEN Subject='Öl' THEN 'Ja' END = 'ja'"), Variant(1));
    for (const char* statement : {"SELECT UPPER(Subject) FROM AKT ORDER BY UPPER(Subject)",
                                  "SELECT UPPER(Subject) AS n FROM AKT ORDER BY n",
                                  "SELECT UPPER(Subject) FROM AKT ORDER BY 1",
                                  "SELECT UPPER(Subject) FROM AKT GROUP BY UPPER(Subject)"}) {
        std::string order;
        for (const RecordSet rs = select(statement); !rs.at_end(); rs.move_next()) {
            order += rs.value_at(0).get<std::string>().substr(0, 3);
        }
        EXPECT_EQ(order, "ÖLOLMOZEZAU") << statement;
    }
}

TEST_F(CallersStatement, TakesResultsOfExpressionsForTheSameAsUsersDo) {
    for (const char* subject : {"Zoll", "zaun", "öl ", "ÖL", "Zank", "ofen"}) {
        add_activity(subject);
    }
    const auto rows = [this](const std::string& statement) {
        std::size_t count = 0;
        for (const RecordSet rs = select(statement); !rs.at_end(); rs.move_next()) {
            ++count;
        }
        return count;
    };
    EXPECT_EQ(rows("SELECT DISTINCT LEFT(Subject,1) FROM AKT"), 3U);
    EXPECT_EQ(rows("SELECT DISTINCT LEFT(Subject,1) AS l, 'x' || Subject n FROM AKT"), 5U);
    EXPECT_EQ(rows("SELECT 1 FROM (SELECT DISTINCT TRIM(Subject) FROM AKT)"), 5U);
    EXPECT_EQ(rows("SELECT LEFT(Subject,1), count(*) FROM AKT GROUP BY LEFT(Subject,1)"), 3U);
    EXPECT_EQ(single("SELECT COUNT(DISTINCT LEFT(Subject,1)) FROM AKT"), Variant(3));
    EXPECT_EQ(single("SELECT COUNT(DISTINCT CASE WHEN Subject LIKE 'z%' THEN LEFT(Subject,1) END) "
                     "FROM AKT"),
              Variant(1));
    // By bytes the greatest one would be that with the umlaut, the least one that with a capital.
    EXPECT_EQ(single("SELECT MAX(TRIM(Subject)) FROM AKT"), Variant("Zoll"));
    EXPECT_EQ(single("SELECT MIN(Subject || '') FROM AKT"), Variant("ofen"));
    EXPECT_EQ(single("SELECT MAX('ZZ', TRIM(Subject)) FROM AKT LIMIT 1"), Variant("ZZ"));
}

TEST_F(CallersStatement, GivesResultsTheNamesOfTheirTexts) {
    add_activity("x");
    const RecordSet rs = select(
        "SELECT DISTINCT MAX(TRIM( Subject )), Min(UPPER(Kennung)) AS k, LOWER(Subject) = 'X', "
        "'a\"b' || Subject FROM AKT");
    EXPECT_EQ(rs.field_name(0), "MAX(TRIM( Subject ))");
    EXPECT_EQ(rs.field_name(1), "k");
    EXPECT_EQ(rs.field_name(2), "LOWER(Subject) = 'X'");
    EXPECT_EQ(rs.field_name(3), "'a\"b' || Subject");
    EXPECT_EQ(rs.value("MAX(TRIM( Subject ))"), Variant("x"));
}

TEST_F(CallersStatement, ComparesEveryTextWithTheOneShapeItIsCachedUnder) {
    add_activity("O'Hara");
    add_activity("--");
    add_activity("");
    const auto count = [this](const std::string& text) {
        return single("SELECT count(*) FROM AKT WHERE Subject='" + text + "'");
    };
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(count("x"), Variant(0));
        EXPECT_EQ(count("O''Hara"), Variant(1));
        EXPECT_EQ(count("--"), Variant(1));
        EXPECT_EQ(count(""), Variant(1));
        EXPECT_EQ(count("x' OR Subject='--"), Variant(1));
    }
}

TEST_F(CallersStatement, GivesTheFirstAndLastDateAsDates) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    for (const double days : {46081.5, 46083.0}) {
        rs.add_new();
        rs.set("DSN", std::to_string(days));
        rs.set("Datum", Date{days});
    }
    save(rs);
    EXPECT_EQ(single("SELECT MAX(Datum) FROM AKT"), Variant(Date{46083.0}));
    EXPECT_EQ(single("SELECT MIN(AKT.Datum) AS Beginn FROM AKT"), Variant(Date{46081.5}));
    EXPECT_EQ(single("SELECT MAX(Datum) FROM AKT WHERE Subject='x'"), Variant(Null{}));
}

TEST_F(CallersStatement, FindsDatesByTheirText) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    for (const double days : {46081.5, 46082.0, 46082.75, 46083.0}) {
        rs.add_new();
        rs.set("DSN", std::to_string(days));
        rs.set("Datum", Date{days});
    }
    save(rs);
    const auto count = [this](const std::string& condition) {
        return single("SELECT count(*) FROM AKT WHERE " + condition);
    };
    EXPECT_EQ(count("Datum >= '2026-03-01'"), Variant(3));
    EXPECT_EQ(count("Datum = '2026-03-01'"), Variant(1));
    EXPECT_EQ(count("Datum <= '2026-03-01'"), Variant(2));
    EXPECT_EQ(count("Datum > '2026-03-01 12:00:00'"), Variant(2));
    EXPECT_EQ(count("AKT.Datum BETWEEN '2026-03-01' AND '2026-03-02'"), Variant(3));
}

TEST_F(CallersStatement, SharesOnePreparedStatementAmongAllKeys) {
    const auto before = connector->session().statement_statistics();
    for (int i = 0; i < 50; ++i) {
        select("SELECT * FROM AKT WHERE DSN='" + std::to_string(i) + "' AND Km < 5");
    }
    const auto after = connector->session().statement_statistics();
    EXPECT_EQ(after.misses - before.misses, 1U);
    EXPECT_EQ(after.hits - before.hits, 49U);
    EXPECT_EQ(connector->StatementStatistics(), "Wiederverwendet " + std::to_string(after.hits) +
                                                    ", vorbereitet " +
                                                    std::to_string(after.misses) + ", verdrängt 0");
}

TEST_F(CallersStatement, CanBeStoppedFromAnotherThread) {
    std::thread stopper([this] {
        for (int i = 0; i < 100; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            connector->session().interrupt();
        }
    });
    EXPECT_THROW(select("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) "
                        "SELECT count(*) FROM n"),
                 Interrupt);
    stopper.join();
    EXPECT_EQ(single("SELECT 1"), Variant(1));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
