#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "host/sql/statement_reader.h"

namespace cvdeveloper::standalone::sql {
namespace {

constexpr int rounds = 10'000;
constexpr const char* place_of_a_value = "\x01";

// The literals of a statement in order, read by the plainest means: what stands in quotes.
std::vector<std::string> literals_of(std::string_view statement) {
    std::vector<std::string> literals;
    for (std::size_t i = 0; i < statement.size(); ++i) {
        const char c = statement[i];
        if (c == '"' || c == '[') {
            i = std::min(statement.find(c == '"' ? '"' : ']', i + 1), statement.size());
        } else if (c == '\'') {
            std::string literal;
            for (++i; i < statement.size(); ++i) {
                if (statement[i] == '\'' && statement.substr(i, 2) != "''") {
                    break;
                }
                literal += statement[i];
                i += statement[i] == '\'' ? 1 : 0;
            }
            literals.push_back(literal);
        } else if (c == '?') {
            literals.emplace_back(place_of_a_value);
        }
    }
    return literals;
}

// The literals of what was read: the places of parameters filled with their values.
std::vector<std::string> literals_of(const ReadStatement& read) {
    std::vector<std::string> literals = literals_of(read.text);
    std::size_t next = 0;
    std::vector<std::string> filled;
    for (const std::string& literal : literals) {
        if (literal != place_of_a_value) {
            filled.push_back(literal);
            continue;
        }
        const Value& value = read.values.at(next++);
        if (const auto* text = std::get_if<std::string_view>(&value)) {
            filled.emplace_back(*text);
        }
    }
    EXPECT_EQ(next, read.values.size());
    return filled;
}

class RandomStatements : public ::testing::Test {
  protected:
    RandomStatements() {
        for (const char* name : {"AKT", "VERTRÄGE", "Std"}) {
            dictionary.add_table(name);
        }
        dictionary.add_column("Datum", ColumnKind::Date);
        dictionary.add_column("Subject", ColumnKind::Text);
        dictionary.add_column("Verträge_Dsn", ColumnKind::Other);
    }
    std::string statement_of(const std::vector<std::string>& pieces) {
        std::string statement;
        for (std::size_t i = random() % 25; i > 0; --i) {
            statement += pieces[random() % pieces.size()] + " ";
        }
        return statement;
    }

    std::mt19937 random{std::random_device()()};
    Dictionary dictionary;
    StatementReader reader{dictionary};
};

// Whole tokens: every literal must come out as it went in.
TEST_F(RandomStatements, KeepEveryLiteral) {
    const std::vector<std::string> pieces = {
        "SELECT",   "FROM",     "WHERE",       "AS",        "ON",        "IN",
        "AND",      "BETWEEN",  "CAST",        "RIGHT",     "LEFT",      "(",
        ")",        ",",        "=",           "<",         ">=",        "<>",
        "Datum",    "AKT",      "subject",     "x",         "VERTRAEGE", "VERTRAEGE_DSN",
        "5",        "1.5",      "1e9",         "-1",        "'a'",       "'b''c'",
        "''''",     "''",       "'VERTRAEGE'", "'-- x'",    "'/* y */'", "'?'",
        "'ä ß'",    "\"n\"",    "[m]",         "/* 'c' */", "-- 'd'\n",  ".",
        "ORDER BY", "GROUP BY", "LIMIT",       "COLLATE",   "NOT",       "UNION",
        "1=2",      "CASE",     "WHEN",        "THEN",      "END",       "Kennung_AKT"};
    for (int round = 0; round < rounds; ++round) {
        const std::string statement = statement_of(pieces);
        std::string bare = statement;  // without its comments, which hold no literals
        for (const std::string comment : {"/* 'c' */", "-- 'd'\n"}) {
            for (std::size_t at = bare.find(comment); at != std::string::npos;
                 at = bare.find(comment)) {
                bare.erase(at, comment.size());
            }
        }
        const ReadStatement read = reader.read(statement);
        ASSERT_TRUE(read.broken.empty()) << statement;
        ASSERT_EQ(literals_of(read), literals_of(bare)) << statement << "\n" << read.text;
    }
}

// Halves of tokens and bytes that no statement has: whatever comes, it is read to its end.
TEST_F(RandomStatements, NeverFail) {
    const std::vector<std::string> pieces = {
        "SELECT", "WHERE", "LIKE", "ESCAPE", "'",    "\"",         "[",           "]",    "/*",
        "*/",     "--",    "\n",   "(",      ")",    "'a'",        "'a%'",        "=",    "Subject",
        "Datum",  "IN",    ",",    "0x",     "1e",   "1.",         ".",           "?",    ":x",
        "@y",     "$z",    ";",    "\\",     "\x80", "\xC3",       "\xF0\x9F",    "\x01", "BETWEEN",
        "AND",    "CAST",  "AS",   "RIGHT",  "Std",  "Kennung_AD", "'2026-03-01'"};
    for (int round = 0; round < rounds; ++round) {
        std::string statement = statement_of(pieces);
        if (random() % 3 == 0 && !statement.empty()) {
            statement.resize(random() % statement.size());
        }
        ASSERT_NO_THROW(static_cast<void>(reader.read(statement))) << statement;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
