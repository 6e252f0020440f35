#include "host/sql/fingerprint.h"

#include <gtest/gtest.h>

#include <random>

#include "host/sql/statement_reader.h"

namespace cvdeveloper::standalone::sql {
namespace {

using namespace std::string_view_literals;

std::vector<std::string> literals_of(const Fingerprint& fingerprint) {
    return {fingerprint.literals().begin(), fingerprint.literals().end()};
}

TEST(StatementFingerprint, TakesTheTextsOut) {
    Fingerprint fingerprint;
    ASSERT_TRUE(fingerprint.take("SELECT * FROM AKT WHERE DSN='A' AND x='' AND y=5"));
    EXPECT_EQ(fingerprint.text(), "SELECT * FROM AKT WHERE DSN='' AND x='' AND y=5");
    EXPECT_EQ(literals_of(fingerprint), (std::vector<std::string>{"A", ""}));
    ASSERT_TRUE(fingerprint.take("SELECT 1"));
    EXPECT_EQ(fingerprint.text(), "SELECT 1");
    EXPECT_TRUE(fingerprint.literals().empty());
}

TEST(StatementFingerprint, NeedsTheEndOfEveryQuote) {
    Fingerprint fingerprint;
    EXPECT_FALSE(fingerprint.take("SELECT 'a"));
    EXPECT_FALSE(fingerprint.take("SELECT 'a' FROM 'b"));
    EXPECT_TRUE(fingerprint.take(""));
}

class SameForAllTexts : public ::testing::Test {
  protected:
    SameForAllTexts() : reader(dictionary) {
        dictionary.add_table("AKT");
        dictionary.add_column("Datum", ColumnKind::Date);
        dictionary.add_column("Subject", ColumnKind::Text);
    }
    bool holds(std::string_view statement) { return reader.read(statement).same_for_all_texts; }

    Dictionary dictionary;
    StatementReader reader;
};

TEST_F(SameForAllTexts, HoldsForKeysNumbersAndComparisons) {
    for (const char* statement : {"SELECT * FROM AKT WHERE DSN='A'", "SELECT * FROM AKT  WHERE 1=2",
                                  "SELECT a.x FROM a INNER JOIN b ON a.y = b.y WHERE (a.DSN='A') "
                                  "AND (b.z='B') ORDER BY b.x",
                                  "SELECT 1 FROM AKT WHERE Subject IN ('a','b') AND Km < 5",
                                  "SELECT 1 FROM AKT WHERE UPPER(Subject)='A'"}) {
        EXPECT_TRUE(holds(statement)) << statement;
    }
}

TEST_F(SameForAllTexts, DoesNotWhereATextMattersOrAQuoteIsNone) {
    for (const char* statement :
         {"SELECT 'a' AS b FROM AKT", "SELECT 1 FROM AKT WHERE Subject='O''Hara'",
          "SELECT 1 FROM AKT WHERE Subject LIKE 'a%'", "SELECT 1 FROM AKT WHERE Datum>'2026-03-01'",
          "SELECT 1 FROM AKT WHERE Datum='x'", "SELECT 1 FROM AKT WHERE x=X'41'",
          "SELECT \"Subject\" FROM AKT", "SELECT [Subject] FROM AKT", "SELECT 1 -- 'a'",
          "SELECT 1 /* 'a' */", "SELECT 1 FROM AKT ORDER BY 'a'"}) {
        EXPECT_FALSE(holds(statement)) << statement;
    }
}

// Whoever takes a statement for another of its fingerprint must send the database the same.
TEST_F(SameForAllTexts, IsTrueOfEveryStatementThatSaysSo) {
    const std::vector<std::string> pieces = {
        "SELECT", "FROM", "WHERE", "AS",    "ON",    "IN",   "AND",     "BETWEEN", "(",
        ")",      ",",    "=",     "Datum", "AKT",   "x",    "Subject", "LIKE",    "/*",
        "*/",     "--",   "\n",    "5",     "'a'",   "'%b'", "''",      "''''",    "'2026-03-01'",
        "x'41'",  "\"",   "[",     "]",     "ORDER", "BY",   "END",     "||",      "NOT"};
    const std::vector<std::string_view> others = {""sv,   "z%"sv, "2026-04-02"sv, "--"sv,
                                                  "\""sv, "]"sv,  "/*"sv,         "a b"sv};
    std::mt19937 random(7);
    Fingerprint fingerprint;
    int proved = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string statement = random() % 2 == 0 ? "SELECT x FROM AKT WHERE " : "";
        for (std::size_t i = random() % 12; i > 0; --i) {
            statement += pieces[random() % pieces.size()] + (random() % 4 == 0 ? "" : " ");
        }
        const ReadStatement read = reader.read(statement);
        if (!fingerprint.take(statement) || !read.same_for_all_texts || !read.broken.empty()) {
            continue;
        }
        const std::string shape(fingerprint.text());
        // The same quotes with other texts between them.
        std::string other;
        std::vector<std::string_view> texts;
        for (std::size_t i = 0; i < shape.size(); ++i) {
            other += shape[i];
            if (shape[i] == '\'') {
                texts.push_back(others[random() % others.size()]);
                other.append(texts.back()) += shape[++i];
            }
        }
        const ReadStatement& second = reader.read(other);
        ASSERT_EQ(second.text, read.text) << statement << "\n" << other;
        std::vector<std::string_view> lifted;
        for (const Value& value : second.values) {
            if (const auto* text = std::get_if<std::string_view>(&value)) {
                lifted.push_back(*text);
            }
        }
        ASSERT_EQ(lifted, texts) << statement << "\n" << other;
        ASSERT_EQ(second.never_true, read.never_true);
        proved += texts.empty() ? 0 : 1;
    }
    EXPECT_GT(proved, 300);
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
