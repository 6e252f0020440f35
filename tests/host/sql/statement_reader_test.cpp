#include "host/sql/statement_reader.h"

#include <gtest/gtest.h>

#include <random>

namespace cvdeveloper::standalone::sql {
namespace {

class StatementReading : public ::testing::Test {
  protected:
    StatementReading() : reader(dictionary) {
        for (const char* name : {"AKT", "VERTRÄGE", "VERTRÄGEDET", "Aktivitätenarten"}) {
            dictionary.add_table(name);
        }
        for (const char* name : {"Dsn", "Verträge_Dsn", "Priorität", "Kürzel", "Neue"}) {
            dictionary.add_column(name, ColumnKind::Other);
        }
        dictionary.add_column("Datum", ColumnKind::Date);
        dictionary.add_column("Nummer", ColumnKind::Text);
        dictionary.add_column("Stand", ColumnKind::Text);
        dictionary.add_column("Stand", ColumnKind::Date);
    }
    std::string text(std::string_view statement) { return reader.read(statement).text; }
    std::vector<Value> values(std::string_view statement) { return reader.read(statement).values; }

    Dictionary dictionary;
    StatementReader reader;
};

TEST_F(StatementReading, LiftsTheLiteralsOfConditions) {
    const ReadStatement& read =
        reader.read("SELECT * FROM EmskDet WHERE Emsk_Dsn ='A'AND x=5 AND y<1.5");
    EXPECT_EQ(read.text, "SELECT * FROM EmskDet WHERE Emsk_Dsn =?AND x=? AND y<?");
    ASSERT_EQ(read.values.size(), 3U);
    EXPECT_EQ(std::get<std::string_view>(read.values[0]), "A");
    EXPECT_EQ(std::get<std::int64_t>(read.values[1]), 5);
    EXPECT_EQ(std::get<double>(read.values[2]), 1.5);
}

TEST_F(StatementReading, GivesOneTextToAllKeys) {
    EXPECT_EQ(text("SELECT * FROM AKT  WHERE DSN = 'A'"),
              std::string(text("SELECT * FROM AKT  WHERE DSN = 'B'")));
}

TEST_F(StatementReading, ReadsADoubledQuoteAsOne) {
    EXPECT_EQ(std::get<std::string_view>(values("SELECT 1 FROM AD WHERE n='O''Ha''ra'").at(0)),
              "O'Ha'ra");
    EXPECT_EQ(std::get<std::string_view>(values("SELECT 1 FROM AD WHERE n=''''").at(0)), "'");
    EXPECT_EQ(std::get<std::string_view>(values("SELECT 1 FROM AD WHERE n=''").at(0)), "");
}

TEST_F(StatementReading, LeavesSelectListsSortTermsLimitsAndTypesAlone) {
    for (const std::string statement :
         {"SELECT 1, 'x' AS 'y' FROM a ORDER BY y", "SELECT a FROM b GROUP BY c LIMIT 5 OFFSET 2",
          "SELECT CAST(x AS CHAR(36)) FROM a"}) {
        EXPECT_EQ(text(statement), statement);
        EXPECT_TRUE(values(statement).empty());
    }
    EXPECT_EQ(text("SELECT a FROM b WHERE CAST(x AS CHAR(36))='1'"),
              "SELECT a FROM b WHERE CAST(x AS CHAR(36)) COLLATE CVTEXT=?");
}

TEST_F(StatementReading, KeepsTheNamesOfResultsThatItChanges) {
    EXPECT_EQ(text("SELECT DISTINCT UPPER(x) , y FROM a"),
              "SELECT DISTINCT UPPER(x) COLLATE CVTEXT AS \"UPPER(x)\" , y FROM a");
    EXPECT_EQ(text("SELECT MIN(LEFT(x,1)), LEN('a') FROM a"),
              "SELECT MIN(\"LEFT\"(x,1) COLLATE CVTEXT) AS \"MIN(\"\"LEFT\"\"(x,1))\", LEN('a') "
              "FROM a");
    EXPECT_EQ(text("SELECT UPPER(x)='A', (SELECT MAX(x||y) FROM b WHERE z='c') FROM a"),
              "SELECT UPPER(x) COLLATE CVTEXT='A' AS \"UPPER(x)='A'\", "
              "(SELECT MAX(x||y COLLATE CVTEXT) AS \"MAX(x||y)\" FROM b WHERE z=?) "
              "AS \"(SELECT MAX(x||y) FROM b WHERE z=?)\" FROM a");
    EXPECT_EQ(text("SELECT MAX (CASE a WHEN 'x' THEN b END ) AS 'y', MAX(TRIM(c)) z FROM d"),
              "SELECT MAX (CASE a WHEN 'x' THEN b END COLLATE CVTEXT ) AS 'y', "
              "MAX(TRIM(c) COLLATE CVTEXT) z FROM d");
}

TEST_F(StatementReading, GoesBackToListsAfterAnInnerCondition) {
    EXPECT_EQ(text("SELECT (SELECT 1 FROM a WHERE b='c'), 'd' FROM e ORDER BY 2"),
              "SELECT (SELECT 1 FROM a WHERE b=?), 'd' FROM e ORDER BY 2 COLLATE CVTEXT");
    EXPECT_EQ(text("SELECT x FROM a WHERE b IN (SELECT 'c' FROM d WHERE e='f') AND g='h'"),
              "SELECT x FROM a WHERE b IN (SELECT 'c' FROM d WHERE e=?) AND g=?");
}

TEST_F(StatementReading, LiftsLiteralsOfJoinsAndLists) {
    EXPECT_EQ(text("SELECT a FROM b INNER JOIN c ON b.x='1' WHERE d IN ('2',3) AND e LIKE 'f%'"),
              "SELECT a FROM b INNER JOIN c ON b.x=? WHERE d IN (?,?) AND e LIKE ?");
}

TEST_F(StatementReading, SpellsNamesAsTheSchemaDoes) {
    EXPECT_EQ(text("SELECT PRIORITÄT, kürzel FROM verträge"),
              "SELECT Priorität, Kürzel FROM VERTRÄGE");
    EXPECT_EQ(text("SELECT VERTRAEGE_DSN FROM VERTRAEGE INNER JOIN VERTRAEGEDET"),
              "SELECT Verträge_Dsn FROM VERTRÄGE INNER JOIN VERTRÄGEDET");
    EXPECT_EQ(text("SELECT * FROM Aktivitaetenarten"), "SELECT * FROM Aktivitätenarten");
    EXPECT_EQ(text("SELECT \"PRIORITÄT\" FROM [verträge]"), "SELECT \"Priorität\" FROM [VERTRÄGE]");
    EXPECT_EQ(text("SELECT Neue, Größe FROM t"), "SELECT Neue, Größe FROM t");
}

TEST_F(StatementReading, LeavesNamesInsideLiteralsAlone) {
    EXPECT_EQ(std::get<std::string_view>(values("SELECT 1 FROM t WHERE a='PRIORITÄT'").at(0)),
              "PRIORITÄT");
}

TEST_F(StatementReading, QuotesRightAndLeftWhereTheyAreFunctions) {
    EXPECT_EQ(text("SELECT RIGHT(postorte.alort,4) AS Id FROM postorte"),
              "SELECT \"RIGHT\"(postorte.alort,4) AS Id FROM postorte");
    EXPECT_EQ(text("SELECT a FROM b LEFT OUTER JOIN c"), "SELECT a FROM b LEFT OUTER JOIN c");
}

TEST_F(StatementReading, RecognisesTheConditionThatIsNeverTrue) {
    for (const char* statement :
         {"SELECT * FROM AKT  WHERE 1=2", "SELECT * FROM Akt WHERE 1=2",
          "SELECT * FROM a WHERE (1=2)", "SELECT a.* FROM a INNER JOIN b ON a.x = b.y WHERE 1=2",
          "SELECT x FROM a where 1 = 0 ORDER BY x"}) {
        EXPECT_TRUE(reader.read(statement).never_true) << statement;
        EXPECT_TRUE(reader.read(statement).values.empty()) << statement;
    }
    for (const char* statement :
         {"SELECT * FROM a WHERE 1=1", "SELECT * FROM a WHERE 1=2 OR x='y'",
          "SELECT * FROM a WHERE x=2", "SELECT * FROM a WHERE 1=2 UNION SELECT * FROM b",
          "SELECT * FROM a", "SELECT * FROM a WHERE 1=", "SELECT * FROM a WHERE 1=1.0"}) {
        EXPECT_FALSE(reader.read(statement).never_true) << statement;
    }
}

TEST_F(StatementReading, NoticesWhoAsksForANumber) {
    EXPECT_TRUE(reader.read("SELECT Kennung_AKT FROM Std").asks_for_number);
    EXPECT_TRUE(reader.read("select std.KENNUNG_ad from Std").asks_for_number);
    EXPECT_FALSE(reader.read("SELECT * FROM Std").asks_for_number);
    EXPECT_FALSE(reader.read("SELECT Kennung FROM AKT").asks_for_number);
}

TEST_F(StatementReading, CompletesDaysThatStandBesideDates) {
    const auto first = [this](std::string_view statement) {
        return std::string(std::get<std::string_view>(values(statement).at(0)));
    };
    EXPECT_EQ(first("SELECT 1 FROM AKT WHERE Datum >= '2026-03-01'"), "2026-03-01 00:00:00");
    EXPECT_EQ(first("SELECT 1 FROM AKT WHERE AKT.DATUM='2026-03-01'"), "2026-03-01 00:00:00");
    EXPECT_EQ(first("SELECT 1 FROM AKT WHERE Datum IN ('2026-03-01')"), "2026-03-01 00:00:00");
    EXPECT_EQ(first("SELECT 1 FROM AKT WHERE Subject = '2026-03-01'"), "2026-03-01");
    EXPECT_EQ(first("SELECT 1 FROM AKT WHERE Datum LIKE '2026-03-01'"), "2026-03-01");
    const auto both = values("SELECT 1 FROM AKT WHERE Datum BETWEEN '2026-03-01' AND '2026-03-31'");
    EXPECT_EQ(std::get<std::string_view>(both.at(1)), "2026-03-31 00:00:00");
}

TEST_F(StatementReading, AddsTheRangeThatALikeStandsFor) {
    const ReadStatement& read =
        reader.read("SELECT 1 FROM Tapi WHERE Tapi.Nummer LIKE '0201%' AND x='y'");
    EXPECT_EQ(read.text,
              "SELECT 1 FROM Tapi WHERE (Tapi.Nummer LIKE ? AND Tapi.Nummer>=? AND "
              "Tapi.Nummer<?) AND x=?");
    EXPECT_EQ(std::get<std::string_view>(read.values.at(0)), "0201%");
    EXPECT_EQ(std::get<std::string_view>(read.values.at(1)), "0201");
    EXPECT_EQ(std::get<std::string_view>(read.values.at(3)), "y");
    for (const std::string statement : {"SELECT 1 FROM Tapi WHERE Nummer LIKE '%1'",
                                        "SELECT 1 FROM Tapi WHERE Nummer NOT LIKE 'a'",
                                        "SELECT 1 FROM Tapi WHERE Stand LIKE 'a%'",
                                        "SELECT 1 FROM Tapi WHERE Nummer LIKE 'a' ESCAPE '!'"}) {
        EXPECT_EQ(reader.read(statement).text.find(">="), std::string::npos) << statement;
    }
}

TEST_F(StatementReading, ComparesResultsOfFunctionsAsTexts) {
    EXPECT_EQ(text("SELECT 1 FROM t WHERE RIGHT(a,2)='xy' AND b='c'"),
              "SELECT 1 FROM t WHERE \"RIGHT\"(a,?) COLLATE CVTEXT=? AND b=?");
}

TEST_F(StatementReading, DropsComments) {
    EXPECT_EQ(text("SELECT a -- b\n FROM c /* d */"), "SELECT a FROM c");
}

TEST_F(StatementReading, NeverFailsAndNeverChangesALiteral) {
    const std::vector<std::string> pieces = {
        "SELECT", "FROM",    "WHERE",   "AS",           "ON",  "IN",
        "AND",    "BETWEEN", "CAST",    "RIGHT",        "(",   ")",
        ",",      "=",       "<",       "Datum",        "AKT", "x",
        "'",      "\"",      "/*",      "--",           "\n",  "5",
        "1.5",    "'a'",     "'b''c'",  "'2026-03-01'", ".",   "?",
        "ORDER",  "LIMIT",   "COLLATE", "NOT",          "1=2", "Kennung_AKT"};
    std::mt19937 random(11);
    for (int round = 0; round < 10000; ++round) {
        std::string statement;
        for (std::size_t i = random() % 25; i > 0; --i) {
            statement += pieces[random() % pieces.size()] + (random() % 4 == 0 ? "" : " ");
        }
        const ReadStatement read = reader.read(statement);
        for (const Value& value : read.values) {
            if (const auto* literal = std::get_if<std::string_view>(&value)) {
                const bool known = statement.find(literal->substr(0, 10)) != std::string::npos ||
                                   literal->find('\'') != std::string_view::npos;
                ASSERT_TRUE(known) << statement;
            }
        }
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
