#include "host/sql/token.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace cvdeveloper::standalone::sql {
namespace {

std::vector<std::string> texts(std::string_view statement) {
    std::vector<Token> tokens;
    tokenize(statement, tokens);
    std::vector<std::string> result;
    for (const Token& token : tokens) {
        result.emplace_back(token.text);
    }
    return result;
}

using Texts = std::vector<std::string>;

TEST(Tokenizer, TakesAStatementApart) {
    EXPECT_EQ(texts("SELECT a,\"b c\",[d] FROM `e` WHERE x<=1.5e-3"),
              (Texts{"SELECT", "a", ",", "\"b c\"", ",", "[d]", "FROM", "`e`", "WHERE", "x",
                     "<=", "1.5e-3"}));
}

TEST(Tokenizer, KeepsADoubledQuoteInsideItsLiteral) {
    EXPECT_EQ(texts("'O''Hara'AND''"), (Texts{"'O''Hara'", "AND", "''"}));
}

TEST(Tokenizer, TakesUmlautsForLetters) {
    EXPECT_EQ(texts("VERTRÄGE.Größe§1"), (Texts{"VERTRÄGE", ".", "Größe§1"}));
}

TEST(Tokenizer, PassesOverComments) {
    EXPECT_EQ(texts("a -- 'x\nb /* ' */ c"), (Texts{"a", "b", "c"}));
}

TEST(Tokenizer, ReportsAQuoteWithoutItsEnd) {
    std::vector<Token> tokens;
    for (const char* statement : {"a 'b", "a \"b", "a [b", "a `b", "a /* b", "a 'b''"}) {
        tokenize(statement, tokens);
        ASSERT_EQ(tokens.size(), 2U) << statement;
        EXPECT_EQ(tokens[1].kind, TokenKind::Broken) << statement;
    }
}

TEST(Tokenizer, LosesNothingOfAnyText) {
    std::mt19937 random(7);
    const std::string_view letters = "aÄ'\"[]`-/*\n 1.eE+()=<x?;\0\xff";
    std::vector<Token> tokens;
    for (int round = 0; round < 10000; ++round) {
        std::string statement;
        const std::size_t length = random() % 40;
        for (std::size_t i = 0; i < length; ++i) {
            statement += letters[random() % letters.size()];
        }
        tokenize(statement, tokens);
        std::size_t end = 0;
        for (const Token& token : tokens) {
            ASSERT_FALSE(token.text.empty()) << statement;
            ASSERT_GE(token.begin, end) << statement;
            ASSERT_EQ(statement.substr(token.begin, token.text.size()), token.text);
            end = token.end();
        }
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
