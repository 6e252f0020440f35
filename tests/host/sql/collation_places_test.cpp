#include "host/sql/collation_places.h"

#include <gtest/gtest.h>

#include <string>

namespace cvdeveloper::standalone::sql {
namespace {

// The statement with "~" where the comparison has to be named.
std::string marked(std::string_view statement) {
    std::vector<Token> tokens;
    tokenize(statement, tokens);
    std::vector<std::size_t> places;
    find_collation_places(tokens, places);
    std::string text(statement);
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        text.insert(tokens[*place].end(), "~");
    }
    return text;
}

TEST(CollationPlaces, AreNotNeededWhereColumnsStand) {
    for (const std::string statement :
         {"SELECT * FROM a WHERE a.x='1' AND y IN ('2') ORDER BY a.DSN, x DESC",
          "SELECT a FROM b WHERE (x='1') AND (y BETWEEN 1 AND 2) GROUP BY z HAVING z > 1",
          "SELECT a FROM b WHERE x IN (SELECT y FROM c) AND (a,b)=(1,2) AND NOT (x)=1",
          "SELECT UPPER(x), 'a' FROM b LIMIT 5", "SELECT a FROM b ORDER BY \"c\", [d e]",
          "SELECT DISTINCT a.x, y AS z, w v, *, a.* FROM a WHERE b=1",
          "SELECT MAX(x), MIN(a.y), COUNT(DISTINCT x), MAX(\"z\"), COUNT(UPPER(x)) FROM a",
          "SELECT x IS DISTINCT FROM y, z FROM a"}) {
        EXPECT_EQ(marked(statement), statement);
    }
}

TEST(CollationPlaces, StandAfterResultsThatAreCompared) {
    EXPECT_EQ(marked("SELECT 1 FROM a WHERE UPPER(x)='A' AND LEFT (y,2) <> z"),
              "SELECT 1 FROM a WHERE UPPER(x)~='A' AND LEFT (y,2)~ <> z");
    EXPECT_EQ(marked("SELECT 1 FROM a WHERE TRIM(x) IN ('A') AND LOWER(y) NOT BETWEEN 'a' AND 'b'"),
              "SELECT 1 FROM a WHERE TRIM(x)~ IN ('A') AND LOWER(y)~ NOT BETWEEN 'a' AND 'b'");
    EXPECT_EQ(marked("SELECT 1 FROM a WHERE CASE WHEN x=1 THEN 'b' END = 'c'"),
              "SELECT 1 FROM a WHERE CASE WHEN x=1 THEN 'b' END~ = 'c'");
    EXPECT_EQ(marked("SELECT 1 FROM a WHERE x || a.y = 'c' AND 'd'=UPPER(e)"),
              "SELECT 1 FROM a WHERE x || a.y~ = 'c' AND 'd'~=UPPER(e)");
}

TEST(CollationPlaces, StandAfterSortTermsThatAreNoColumns) {
    EXPECT_EQ(marked("SELECT x AS n, y FROM a GROUP BY UPPER(y), N ORDER BY n DESC, y, x||y, 2"),
              "SELECT x AS n, y FROM a GROUP BY UPPER(y)~, N~ ORDER BY n~ DESC, y, x||y~, 2~");
    EXPECT_EQ(marked("SELECT 1 FROM (SELECT x FROM a ORDER BY LOWER(x)) ORDER BY LEN(x) LIMIT 3;"),
              "SELECT 1 FROM (SELECT x FROM a ORDER BY LOWER(x)~) ORDER BY LEN(x)~ LIMIT 3;");
    EXPECT_EQ(marked("SELECT 1 FROM a ORDER BY UPPER(x);"), "SELECT 1 FROM a ORDER BY UPPER(x)~;");
    EXPECT_EQ(marked("SELECT x FROM a ORDER BY UPPER(x) COLLATE BINARY NULLS LAST"),
              "SELECT x FROM a ORDER BY UPPER(x) COLLATE BINARY NULLS LAST");
}

TEST(CollationPlaces, StandAfterResultsThatAreToBeDistinct) {
    EXPECT_EQ(marked("SELECT DISTINCT LEFT(x,1), y, x||y AS z, CASE WHEN x THEN y END c FROM a"),
              "SELECT DISTINCT LEFT(x,1)~, y, x||y~ AS z, CASE WHEN x THEN y END~ c FROM a");
    EXPECT_EQ(marked("SELECT 1 FROM (SELECT DISTINCT UPPER(x) FROM a) WHERE y IN "
                     "(SELECT DISTINCT LOWER(z))"),
              "SELECT 1 FROM (SELECT DISTINCT UPPER(x)~ FROM a) WHERE y IN "
              "(SELECT DISTINCT LOWER(z)~)");
    EXPECT_EQ(marked("SELECT DISTINCT UPPER(x) FROM a UNION SELECT LOWER(y) FROM b ORDER BY 1"),
              "SELECT DISTINCT UPPER(x)~ FROM a UNION SELECT LOWER(y) FROM b ORDER BY 1~");
    EXPECT_EQ(marked("SELECT DISTINCT UPPER(x) COLLATE BINARY, TRIM(x) FROM a GROUP BY LEFT(x,1)"),
              "SELECT DISTINCT UPPER(x) COLLATE BINARY, TRIM(x)~ FROM a GROUP BY LEFT(x,1)~");
    EXPECT_EQ(marked("SELECT DISTINCT a.From, UPPER(x) IS DISTINCT FROM y FROM a"),
              "SELECT DISTINCT a.From, UPPER(x)~ IS DISTINCT FROM y~ FROM a");
}

TEST(CollationPlaces, StandInFunctionsThatPickOneOfTheirArguments) {
    EXPECT_EQ(marked("SELECT MAX(UPPER(x)), min (x||y) FROM a HAVING MAX(TRIM(x))='b'"),
              "SELECT MAX(UPPER(x)~), min (x||y~) FROM a HAVING MAX(TRIM(x)~)~='b'");
    EXPECT_EQ(
        marked("SELECT COUNT(DISTINCT UPPER(x)), MAX(DISTINCT LOWER(x)), MAX(x, TRIM(y)) FROM a"),
        "SELECT COUNT(DISTINCT UPPER(x)~), MAX(DISTINCT LOWER(x)~), MAX(x, TRIM(y)~) FROM a");
}

TEST(CollationPlaces, SurviveStatementsThatAreNone) {
    for (const std::string statement :
         {"", ")", ")=(", "=", "BY", "BY ,", "ORDER BY", "END=", "SELECT DISTINCT", "DISTINCT",
          "MAX(", "MAX(DISTINCT", "SELECT DISTINCT AS b FROM", "SELECT DISTINCT , FROM"}) {
        EXPECT_NO_THROW(marked(statement)) << statement;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
