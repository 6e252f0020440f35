#include <string>
#include <vector>

#include "host/database/sqlite/connection.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

class AStatement : public ::testing::Test {
  protected:
    AStatement() {
        database.run_script(
            "CREATE TABLE t (a INTEGER PRIMARY KEY, b TEXT, c DOUBLE, d BLOB);"
            "INSERT INTO t VALUES (1, 'eins', 0.5, NULL), (2, NULL, NULL, x'00FF'),"
            "                     (3, '', 3.0, x''), (4, 'vier', NULL, NULL)");
    }
    // Kinds and content of a result, a line for each row.
    static std::vector<std::string> shown(const Rows& rows) {
        std::vector<std::string> lines;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            std::string& line = lines.emplace_back();
            for (std::size_t column = 0; column < rows.columns(); ++column) {
                line += shown(rows[row][column]) + " ";
            }
        }
        return lines;
    }
    static std::string shown(const Cell& cell) {
        switch (cell.kind) {
            case CellKind::Null:
                break;
            case CellKind::Integer:
                return std::to_string(cell.integer);
            case CellKind::Double:
                return std::to_string(cell.number);
            case CellKind::Text:
                return "'" + std::string(cell.text()) + "'";
            case CellKind::Bytes:
                return std::to_string(cell.size) + "B";
        }
        return "-";
    }
    std::unique_ptr<Statement> prepare(const std::string& text) {
        return database.prepare(text, Author::Host);
    }
    static std::vector<std::string> run(Statement& statement) {
        Rows rows(statement.columns().size());
        statement.query({}, rows);
        return shown(rows);
    }

    TemporaryFolder folder;
    sqlite::Connection database{folder.path("t.db"), {.create = true}};
};

using Lines = std::vector<std::string>;

TEST_F(AStatement, GivesEveryValueInItsKind) {
    const auto statement = prepare("SELECT * FROM t ORDER BY a");
    const Lines expected = {"1 'eins' 0.500000 - ", "2 - - 2B ", "3 '' 3.000000 0B ",
                            "4 'vier' - - "};
    EXPECT_EQ(run(*statement), expected);
    EXPECT_EQ(run(*statement), expected);
}

TEST_F(AStatement, GivesInWholeRowsWhatItGivesColumnByColumn) {
    constexpr int columns = 60;
    std::string all;
    for (int i = 0; i < columns; ++i) {
        all += (i == 0 ? "c" : ",c") + std::to_string(i);
    }
    // Numbers by which kind, nulls and length seem to be anything.
    std::string values;
    for (int i = 0; i < columns; ++i) {
        const std::string number = "(i * 7919 + " + std::to_string(i * i * 104729) + ")";
        values += (i == 0 ? "" : ",");
        values += "CASE " + number + " % 11 WHEN 0 THEN i WHEN 1 THEN i / 8.0 WHEN 2 THEN '' " +
                  "WHEN 3 THEN printf('%.*c', " + number + " % 300, 'x') " +
                  "WHEN 4 THEN zeroblob(i % 50) WHEN 5 THEN 'k' || i END";
    }
    database.run_script("CREATE TABLE w (" + all +
                        "); INSERT INTO w WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                        "LIMIT 300) SELECT " +
                        values + " FROM n");
    for (const std::string order : {"rowid", "rowid % 7, rowid"}) {
        const Lines whole = run(*prepare("SELECT * FROM w ORDER BY " + order));
        Lines by_column(whole.size());
        for (int i = 0; i < columns; ++i) {
            const auto one = prepare("SELECT c" + std::to_string(i) + " FROM w ORDER BY " + order);
            const Lines fields = run(*one);
            ASSERT_EQ(fields.size(), whole.size());
            for (std::size_t row = 0; row < fields.size(); ++row) {
                by_column[row] += fields[row];
            }
        }
        EXPECT_EQ(whole, by_column);
    }
}

TEST_F(AStatement, GivesTheRowsOfAllItsParts) {
    const auto statement = prepare(
        "SELECT a, b FROM t WHERE a < 3 UNION ALL SELECT 'x', c FROM t UNION ALL "
        "SELECT d, 7 FROM t WHERE a = 2");
    const Lines expected = {"1 'eins' ",     "2 - ",   "'x' 0.500000 ", "'x' - ",
                            "'x' 3.000000 ", "'x' - ", "2B 7 "};
    EXPECT_EQ(run(*statement), expected);
    EXPECT_EQ(run(*statement), expected);
}

TEST_F(AStatement, GivesSortedGroupedAndRecursiveRowsToo) {
    EXPECT_EQ(run(*prepare("SELECT b, a, c FROM t ORDER BY c DESC, b")),
              (Lines{"'' 3 3.000000 ", "'eins' 1 0.500000 ", "- 2 - ", "'vier' 4 - "}));
    EXPECT_EQ(run(*prepare("SELECT c IS NULL, count(*), max(b) FROM t GROUP BY 1")),
              (Lines{"0 2 'eins' ", "1 2 'vier' "}));
    EXPECT_EQ(run(*prepare("WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 3) "
                           "SELECT i, b FROM n LEFT JOIN t ON a = i + 2")),
              (Lines{"1 '' ", "2 'vier' ", "3 - "}));
}

TEST_F(AStatement, GivesItsRowsAfterOthersHaveRun) {
    const auto one = prepare("SELECT a, b, c, d FROM t WHERE a = 1");
    const auto other = prepare("SELECT b, a FROM t WHERE a = 4");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(run(*one), Lines{"1 'eins' 0.500000 - "});
        EXPECT_EQ(run(*other), Lines{"'vier' 4 "});
    }
}

TEST_F(AStatement, GivesItsRowsAfterTheSchemaHasChanged) {
    const auto named = prepare("SELECT a, b FROM t ORDER BY a LIMIT 2");
    const auto all = prepare("SELECT * FROM t ORDER BY a LIMIT 2");
    const Lines expected = {"1 'eins' ", "2 - "};
    EXPECT_EQ(run(*named), expected);
    EXPECT_EQ(run(*all), (Lines{"1 'eins' 0.500000 - ", "2 - - 2B "}));
    database.run_script("ALTER TABLE t ADD e TEXT DEFAULT 'neu'");
    EXPECT_EQ(run(*named), expected);
    EXPECT_EQ(run(*all), (Lines{"1 'eins' 0.500000 - ", "2 - - 2B "}));
    database.run_script("ALTER TABLE t DROP e; ALTER TABLE t DROP d; ALTER TABLE t DROP c");
    EXPECT_EQ(run(*named), expected);
    EXPECT_EQ(run(*all), (Lines{"1 'eins' - - ", "2 - - - "}));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
