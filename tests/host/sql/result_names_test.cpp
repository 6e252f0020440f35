#include "host/sql/result_names.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>

namespace cvdeveloper::standalone::sql {
namespace {

using Texts = std::vector<std::string>;

// The results that have no name, where each token is a place.
Texts unnamed(std::string_view statement) {
    std::vector<Token> tokens;
    tokenize(statement, tokens);
    std::vector<std::size_t> places(tokens.size());
    std::iota(places.begin(), places.end(), 0);
    Texts found;
    for (const ResultTokens& result : find_unnamed_results(tokens, places)) {
        const std::size_t begin = tokens[result.first].begin;
        found.emplace_back(statement.substr(begin, tokens[result.last].end() - begin));
    }
    return found;
}

TEST(ResultsWithoutAName, AreFoundInEachSelect) {
    EXPECT_EQ(unnamed("SELECT a, UPPER(b), c || 'd' FROM e WHERE f"),
              (Texts{"a", "UPPER(b)", "c || 'd'"}));
    EXPECT_EQ(unnamed("SELECT DISTINCT a.From, (SELECT ALL b FROM c) FROM d UNION SELECT 1;"),
              (Texts{"a.From", "b", "(SELECT ALL b FROM c)", "1"}));
    EXPECT_EQ(unnamed("SELECT a IS DISTINCT FROM b, c FROM d"),
              (Texts{"a IS DISTINCT FROM b", "c"}));
}

TEST(ResultsWithoutAName, AreThoseWithoutAsAndWithoutAWordBehindThem) {
    EXPECT_EQ(unnamed("SELECT a AS b, c d, UPPER(e) f, g 'h', i AS \"j\", k [l m], 1 n FROM o"),
              Texts());
    EXPECT_EQ(
        unnamed("SELECT a AND b, c LIKE 'd', NOT e, f.g, CASE WHEN h THEN i END, j IS NULL"),
        (Texts{"a AND b", "c LIKE 'd'", "NOT e", "f.g", "CASE WHEN h THEN i END", "j IS NULL"}));
}

TEST(ResultsWithoutAName, CountOnlyWhereThereIsAPlaceInThem) {
    std::vector<Token> tokens;
    tokenize("SELECT a, b || c, d FROM e", tokens);
    const std::size_t place = 5;
    EXPECT_EQ(find_unnamed_results(tokens, {&place, 1}), (std::vector<ResultTokens>{{3, 5}}));
    EXPECT_TRUE(find_unnamed_results(tokens, {}).empty());
}

TEST(ResultsWithoutAName, AreNoneOfStatementsThatAreNone) {
    for (const std::string statement : {"", ")", "SELECT", "SELECT ,", "))SELECT(", "AS", "FROM"}) {
        EXPECT_NO_THROW(unnamed(statement)) << statement;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
