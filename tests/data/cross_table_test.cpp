#include "cvdeveloper/data/cross_table.h"

#include <gtest/gtest.h>

#include "cvdeveloper/application.h"
#include "platform/text.h"
#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

class CrossTableTest : public testing::Test {
  protected:
    std::string build(std::string_view table, std::string_view columns, std::string_view details,
                      std::string_view where = {}, std::string_view order = {}) {
        return app->oBase()->Sql_CrossTable(table, columns, details, where, order);
    }
    // The list of columns that the statement shows.
    std::string shown(std::string_view details) {
        const std::string statement = build("AD", "Name", details);
        const std::size_t end = statement.find(" FROM Version ,");
        return statement.substr(7, end - 7);
    }
    // The condition that finds the field kinds.
    std::string conditions(std::string_view details) {
        const std::string statement = build("AD", "Name", details);
        const std::size_t start = statement.find("WHERE (") + 7;
        return statement.substr(start, statement.find(") ) AS t2") - start);
    }

    Ref<Application> app = make_object<Application>();  // no session is needed
};

TEST_F(CrossTableTest, BuildsTheWholeStatement) {
    EXPECT_EQ(build("AD", "Name|Ort", "Zimmer"),
              "SELECT t1.Name, t1.Ort, MAX (CASE Kürzel WHEN 'Zimmer' THEN Eingabe END ) "
              "AS 'Zimmer' FROM Version ,  "
              "(SELECT AD.Name, AD.Ort, t2.Kürzel, t2.Eingabe, t2.Sortierung, t2.Von_Num, "
              "t2.Bis_Num, t2.Typ, t2.Bezeichnung, t2.Wert, t2.FldArt_Dsn, t2.FldArtOp_Dsn  "
              "FROM AD LEFT OUTER JOIN "
              "(SELECT FldArt.Kürzel, FldArt.Sortierung, FldArt.Typ, FldArtOp.Bezeichnung, "
              "FldArtOp.Wert, ADDet.AD_Dsn, ADDet.Eingabe, ADDet.Von_Num, ADDet.Bis_Num, "
              "ADDet.FldArt_Dsn, ADDet.FldArtOp_Dsn FROM AD "
              "INNER JOIN ADDet ON AD.Dsn = ADDet.AD_Dsn "
              "INNER JOIN FldArt ON ADDet.FldArt_Dsn = FldArt.Dsn "
              "LEFT OUTER JOIN FldArtOp ON ADDet.FldArtOp_Dsn = FldArtOp.Dsn "
              "WHERE (FldArt.Kürzel='Zimmer') ) AS t2 on AD.Dsn = t2.AD_dsn ) AS t1 "
              "GROUP BY t1.Name, t1.Ort ");
}

TEST_F(CrossTableTest, ConditionAndOrderFollowWhereTheyAreGiven) {
    const std::string statement = build("OBJ", "Kennung", "Zimmer", "OBJ.Aktiv = 1", "t1.Kennung");
    EXPECT_TRUE(statement.ends_with(
        "(FldArt.Kürzel='Zimmer') ) AS t2 on OBJ.Dsn = t2.OBJ_dsn WHERE (OBJ.Aktiv = 1) ) AS t1 "
        "GROUP BY t1.Kennung ORDER BY t1.Kennung "))
        << statement;
}

TEST_F(CrossTableTest, ItemsShowTheEnteredTextUnlessTheyNameAColumn) {
    EXPECT_EQ(shown("Zimmer"),
              "t1.Name, MAX (CASE Kürzel WHEN 'Zimmer' THEN Eingabe END ) AS 'Zimmer'");
    EXPECT_EQ(shown("Preis.Von_Num"),
              "t1.Name, MAX (CASE Kürzel WHEN 'Preis' THEN Von_Num END ) AS 'Preis_Von_Num'");
    EXPECT_EQ(shown("Preis.Bis_Num"),
              "t1.Name, MAX (CASE Kürzel WHEN 'Preis' THEN Bis_Num END ) AS 'Preis_Bis_Num'");
}

TEST_F(CrossTableTest, TheEnteredTextGivesItsNameAloneWhateverItsCase) {
    EXPECT_EQ(shown("Preis.eingabe"),
              "t1.Name, MAX (CASE Kürzel WHEN 'Preis' THEN eingabe END ) AS 'Preis'");
}

TEST_F(CrossTableTest, ItemsMayMatchAnotherColumnAndValue) {
    EXPECT_EQ(shown("Lage=Kürzel#LAGE1"),
              "t1.Name, MAX (CASE Kürzel WHEN 'LAGE1' THEN Eingabe END ) AS 'Lage'");
    EXPECT_EQ(conditions("Lage=Kürzel#LAGE1"), "FldArt.Kürzel='LAGE1'");
    EXPECT_EQ(shown("Lage=Sortierung"),
              "t1.Name, MAX (CASE Sortierung WHEN 'Lage' THEN Eingabe END ) AS 'Lage'");
    EXPECT_EQ(conditions("Lage=Sortierung"), "FldArt.Sortierung='Lage'");
}

TEST_F(CrossTableTest, MatchingByTheFieldKindsKeyAsksTheDetailTable) {
    EXPECT_EQ(conditions("x=FldArt_Dsn#{7}"), "ADDet.FldArt_Dsn='{7}'");
    EXPECT_EQ(conditions("x=fldart_dsn#{7}"), "ADDet.fldart_dsn='{7}'");
}

TEST_F(CrossTableTest, KeysAreShownAsTexts) {
    EXPECT_EQ(shown("x.FldArtOp_Dsn=FldArt_Dsn#{7}"),
              "t1.Name, MAX (CASE FldArt_Dsn WHEN '{7}' THEN CAST(FldArtOp_Dsn AS CHAR(36)) END ) "
              "AS 'x_FldArtOp_Dsn'");
    EXPECT_EQ(shown("x.dsn"),
              "t1.Name, MAX (CASE Kürzel WHEN 'x' THEN CAST(dsn AS CHAR(36)) END ) AS 'x_dsn'");
    EXPECT_EQ(shown("x.Link_DSN"),
              "t1.Name, MAX (CASE Kürzel WHEN 'x' THEN CAST(Link_DSN AS CHAR(36)) END ) "
              "AS 'x_Link_DSN'");
}

TEST_F(CrossTableTest, AValueThatIsAskedForTwiceHasTwoColumnsAndOneCondition) {
    EXPECT_EQ(shown("Zimmer|Zimmer.Von_Num"),
              "t1.Name, MAX (CASE Kürzel WHEN 'Zimmer' THEN Eingabe END ) AS 'Zimmer', "
              "MAX (CASE Kürzel WHEN 'Zimmer' THEN Von_Num END ) AS 'Zimmer_Von_Num'");
    EXPECT_EQ(conditions("Zimmer|Zimmer.Von_Num"), "FldArt.Kürzel='Zimmer'");
}

TEST_F(CrossTableTest, ConditionsAreJoinedByOr) {
    EXPECT_EQ(conditions("Zimmer|Preis"), "FldArt.Kürzel='Zimmer' OR FldArt.Kürzel='Preis'");
    EXPECT_EQ(conditions("Zimmer|Zimm"), "FldArt.Kürzel='Zimmer' OR FldArt.Kürzel='Zimm'");
}

TEST_F(CrossTableTest, ItemsAreTrimmedAndEmptyOnesSkipped) {
    EXPECT_EQ(build("AD", " Name || Ort ", "  Zimmer |   | Preis "),
              build("AD", "Name|Ort", "Zimmer|Preis"));
}

TEST_F(CrossTableTest, WithoutAColumnOfTheMainTableTheTextIsReturnedAsBuilt) {
    EXPECT_EQ(build("AD", "", "Zimmer"),
              "SELECT MAX (CASE Kürzel WHEN 'Zimmer' THEN Eingabe END ) AS 'Zimmer' "
              "FROM Version ,  (SELECT WHERE (FldArt.Kürzel='Zimmer') ) AS t2 "
              "on AD.Dsn = t2.AD_dsn ) AS t1  ");
}

TEST_F(CrossTableTest, WithoutADetailColumnItIsAnError) {
    for (const std::string_view details : {"", " | ", "|"}) {
        expect_error(-2147221504, "", "Keine Feldart in strDetailPipeList angegeben",
                     [&] { build("AD", "Name", details); });
    }
}

}  // namespace
}  // namespace cvdeveloper
