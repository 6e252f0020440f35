// What users type reaches statements as it is. A quote in it may break the statement or read what
// the user may read; it never writes, never reaches a file and never reads a password's hash.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "host/database/sqlite/connection.h"
#include "host/services/attachment_checks.h"
#include "support/standalone_application.h"

namespace cvdeveloper::standalone::testing {
namespace {

class Injection : public StandaloneApplicationTest {
  protected:
    Injection() {
        app->AKT_Create("", "bleibt");
        before = content();
    }

    [[nodiscard]] std::string outside() const { return folder.path("fremd"); }

    [[nodiscard]] std::vector<std::string> attempts() const {
        return {
            "' OR '1'='1",
            "' OR 1=1 --",
            "') OR ('1'='1",
            "x' UNION SELECT hash FROM cv_password --",
            "x' UNION SELECT * FROM cv_password --",
            "x' UNION ALL SELECT hash, hash, hash FROM cv_password --",
            "x') UNION SELECT hash FROM cv_password --",
            "x' AND (SELECT hash FROM cv_password) LIKE '%a%' --",
            "x' OR EXISTS (SELECT 1 FROM cv_password WHERE hash LIKE '_rgon%') OR 'a'='",
            "x' OR (SELECT length(hash) FROM [cv_password]) > 0 OR 'a'='",
            "x' OR (SELECT hash FROM \"CV_PASSWORD\") > '' OR 'a'='",
            "x' OR (SELECT hash FROM main.cv_password) > '' OR 'a'='",
            "x' OR (SELECT substr(hash, 1, 1) FROM Cv_Password) = '$' --",
            "x' OR DSN IN (SELECT Benutzer_DSN FROM cv_password) --",
            "x' OR (SELECT count(*) FROM cv_password) > 0 --",
            "x' OR (SELECT failures FROM cv_logon) > 0 --",
            "x' UNION SELECT sql FROM sqlite_master --",
            "x' OR (SELECT count(*) FROM sqlite_schema) > 0 --",
            "x' OR (SELECT count(*) FROM pragma_table_info('cv_password')) > 0 --",
            "'; DELETE FROM AKT; --",
            "'; DROP TABLE AKT; --",
            "'; UPDATE AKT SET Subject='weg'; --",
            "'; UPDATE cv_password SET hash=''; --",
            "'; INSERT INTO AKT (DSN) VALUES ('neu'); --",
            "'; INSERT INTO Benutzer (DSN, Login_Name) VALUES ('neu', 'boese'); --",
            "'; REPLACE INTO Std (DSN) VALUES ('neu'); --",
            "'; ALTER TABLE AKT ADD boese TEXT; --",
            "'; CREATE TABLE boese (x); --",
            "'; CREATE TEMP TRIGGER t AFTER INSERT ON AKT BEGIN DELETE FROM AKT; END; --",
            "'; PRAGMA writable_schema=1; --",
            "'; PRAGMA journal_mode=OFF; --",
            "'; ATTACH '" + outside() + "' AS f; --",
            "'; VACUUM INTO '" + outside() + "'; --",
            "'; BEGIN; DELETE FROM AKT; COMMIT; --",
            "'; SAVEPOINT a; DELETE FROM AKT; RELEASE a; --",
            "x' OR load_extension('" + outside() + "') OR 'a'='",
            "x' OR writefile('" + outside() + "', 'x') OR 'a'='",
            "x' OR readfile('/etc/passwd') > '' OR 'a'='",
            "x' OR zeroblob(1000000000) IS NOT NULL OR 'a'='",
            "x' OR (WITH w AS (DELETE FROM AKT RETURNING 1) SELECT 1 FROM w) OR 'a'='",
            "x'/*",
            "x' --",
            "x'; --",
            "'",
            "''",
            "\"",
            "x\\' OR 1=1 --",
            std::string("x\0' OR 1=1 --", 13),
        };
    }

    // Ways in which a user's text reaches a statement.
    using Way = std::function<Variant(const std::string&)>;
    [[nodiscard]] std::vector<std::pair<std::string, Way>> ways() {
        return {
            {"value",
             [this](const std::string& text) {
                 return rows_of("SELECT * FROM AKT WHERE Subject='" + text + "'");
             }},
            {"one column",
             [this](const std::string& text) {
                 return rows_of("SELECT Subject FROM AKT WHERE Subject='" + text + "'");
             }},
            {"in brackets",
             [this](const std::string& text) {
                 return rows_of("SELECT Subject FROM AKT WHERE (Subject='" + text + "')");
             }},
            {"after a comparison",
             [this](const std::string& text) {
                 return rows_of("SELECT Subject FROM AKT WHERE Subject LIKE '%" + text + "%'");
             }},
            {"order",
             [this](const std::string& text) {
                 return rows_of("SELECT Subject FROM AKT ORDER BY Subject" + text);
             }},
            {"by human key",
             [this](const std::string& text) { return call("AKT_FindByKennung", text); }},
            {"by key", [this](const std::string& text) { return call("AKT_FindByDSN", text); }},
            {"condition",
             [this](const std::string& text) {
                 return call("AKT_Find", "Subject='" + text + "'");
             }},
            {"feature's name",
             [this](const std::string& text) { return call("MKM_DSNByName", text); }},
            {"field of master data",
             [this](const std::string& text) { return call("STD_GetField", text); }},
            {"subject",
             [this](const std::string& text) { return call("AKT_FindByBetreff", text); }},
        };
    }
    Variant rows_of(const std::string& statement) { return Variant(select(statement).object()); }

    // All that a result shows.
    static std::string shown(const Variant& result) {
        if (!result.is<ObjectRef>() || !to_object(result)) {
            return result.is<std::string>() ? to_text(result) : std::string();
        }
        std::string text;
        for (const RecordSet rs(to_object(result)); rs && !rs.at_end(); rs.move_next()) {
            for (std::int32_t i = 0; i < rs.field_count(); ++i) {
                const Variant value = rs.value_at(i);
                text += value.is<std::string>() ? to_text(value) + "\n" : "";
            }
        }
        return text;
    }

    // The rows of every table, the host's own too.
    [[nodiscard]] std::string content() const {
        sqlite::Connection database(folder.path("büro/corvanta.db"), {});
        std::string all;
        for (const auto& table : database.catalog()->tables()) {
            const auto statement =
                database.prepare("SELECT * FROM \"" + table->name() + "\"", Author::Host);
            Rows rows(statement->columns().size());
            statement->query({}, rows);
            all += table->name() + "\n";
            for (std::size_t row = 0; row < rows.size(); ++row) {
                for (std::size_t column = 0; column < rows.columns(); ++column) {
                    const Cell& cell = rows[row][column];
                    all += cell.kind == CellKind::Text      ? std::string(cell.text())
                           : cell.kind == CellKind::Integer ? std::to_string(cell.integer)
                           : cell.kind == CellKind::Double  ? std::to_string(cell.number)
                                                            : std::string("-");
                    all += "|";
                }
            }
        }
        return all;
    }

    std::string before;
};

TEST_F(Injection, NeitherWritesNorReadsAHash) {
    ASSERT_NE(before.find("$argon2id$"), std::string::npos);
    std::size_t made = 0;
    for (const std::string& attempt : attempts()) {
        for (const auto& [name, way] : ways()) {
            try {
                const std::string result = shown(way(attempt));
                EXPECT_EQ(result.find("$argon2"), std::string::npos) << name << ": " << attempt;
            } catch (const AutomationError& error) {
                EXPECT_EQ(error.description().find("$argon2"), std::string::npos) << attempt;
            }
            ++made;
        }
        ASSERT_EQ(content(), before) << attempt;
    }
    EXPECT_GT(made, 400U);
    EXPECT_FALSE(std::filesystem::exists(outside()));
    EXPECT_EQ(single("SELECT Subject FROM AKT"), Variant("bleibt"));
}

// A question about the hash that is answered by rows or none would tell it bit by bit.
TEST_F(Injection, AsksNothingAboutAHash) {
    for (const std::string& attempt : attempts()) {
        if (attempt.find("assword") == std::string::npos &&
            attempt.find("PASSWORD") == std::string::npos) {
            continue;
        }
        EXPECT_THROW(select("SELECT Subject FROM AKT WHERE Subject='" + attempt + "'"),
                     AutomationError)
            << attempt;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
