#include "host/sql/date_results.h"

#include <gtest/gtest.h>

namespace cvdeveloper::standalone::sql {
namespace {

using Positions = std::vector<std::size_t>;

Positions found(std::string_view statement) {
    Dictionary dictionary;
    dictionary.add_column("Datum", ColumnKind::Date);
    dictionary.add_column("Datum_Bis", ColumnKind::Date);
    dictionary.add_column("Subject", ColumnKind::Text);
    std::vector<Token> tokens;
    tokenize(statement, tokens);
    return find_date_results(tokens, dictionary);
}

TEST(DateResults, AreExpressionsThatPickADate) {
    EXPECT_EQ(found("SELECT MAX(Datum) FROM AKT"), Positions({0}));
    EXPECT_EQ(found("SELECT Subject, min(AKT.Datum) AS erster, MAX(\"Datum\") FROM AKT"),
              Positions({1, 2}));
    EXPECT_EQ(found("SELECT IFNULL(MAX(Datum), Datum_Bis) FROM AKT GROUP BY x"), Positions({0}));
    EXPECT_EQ(found("SELECT (SELECT 1, 2 FROM b), MAX(Datum) FROM AKT"), Positions({1}));
}

TEST(DateResults, AreNothingElse) {
    for (const char* statement :
         {"SELECT Datum FROM AKT", "SELECT MAX(Subject) FROM AKT", "SELECT COUNT(Datum) FROM AKT",
          "SELECT MAX(Datum || 'x') FROM AKT", "SELECT MAX(Datum, 'x') FROM AKT",
          "SELECT UPPER(MAX(Datum)) FROM AKT", "SELECT *, MAX(Datum) FROM AKT",
          "SELECT a.*, MAX(Datum) FROM AKT", "SELECT MAX(Datum", "SELECT", "", "MAX(Datum) FROM"}) {
        EXPECT_EQ(found(statement), Positions()) << statement;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
