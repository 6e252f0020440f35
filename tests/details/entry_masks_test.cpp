#include "cvdeveloper/details/entry_masks.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"
#include "support/repeated.h"

namespace cvdeveloper {
namespace {

class EntryMasksTest : public testing::Test {
  protected:
    static std::string field(const std::string& name) {
        return "SELECT " + name + " FROM EmskDet WHERE Emsk_Dsn ='E' AND FldArt_Dsn ='F'";
    }

    RecordingHost host;
    Ref<Application> app = host.attached();
    const std::string add = "SELECT * FROM EmskDet WHERE Emsk_Dsn ='E'AND FldArt_Dsn ='F'";
    const std::string remove = "SELECT Dsn FROM EmskDet WHERE Emsk_Dsn ='E'AND FldArt_Dsn ='F'";
};

TEST_F(EntryMasksTest, NewMakesAnActiveRowAndDoesNotSaveIt) {
    app->EMSK_New();
    EXPECT_EQ(host.log(),
              (Lines{"SELECT * FROM EMSK  WHERE 1=2", "AddNew", "DSN = 'GUID-1'", "Aktiv = 1"}));
}

TEST_F(EntryMasksTest, CreateFillsTheColumnsInTheirOrder) {
    EXPECT_EQ(app->EMSK_Create("Mietwohnung", EART_MIETE, "Notiz", "OBJ,anf", "g1"), "GUID-1");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM EMSK  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                                 "Aktiv = 1", "Name = 'Mietwohnung'", "EArt = 1", "Notiz = 'Notiz'",
                                 "Gruppen = 'g1'", "obj = 1", "anf = 1", "Update"}));
}

TEST_F(EntryMasksTest, CreateMakesAMaskForSalesUnlessToldOtherwise) {
    app->EMSK_Create();
    EXPECT_EQ(host.log()[5], "EArt = 0");
}

TEST_F(EntryMasksTest, CreateCutsTextsToTheirColumns) {
    for (const std::size_t more : {0U, 1U, 10U}) {
        host.clear_log();
        app->EMSK_Create(repeated("ß", 50 + more), EART_KAUF, "", "", repeated("g", 1000 + more));
        EXPECT_EQ(host.log()[4], "Name = '" + repeated("ß", 50) + "'");
        EXPECT_EQ(host.log()[7], "Gruppen = '" + repeated("g", 1000) + "'");
    }
    host.clear_log();
    app->EMSK_Create(repeated("n", 49) + "🏠");
    EXPECT_EQ(host.log()[4], "Name = '" + repeated("n", 49) + "'");
    host.clear_log();
    app->EMSK_Create(repeated("n", 48) + "🏠");
    EXPECT_EQ(host.log()[4], "Name = '" + repeated("n", 48) + "🏠'");
}

TEST_F(EntryMasksTest, GetFldArtDsnListJoinsTheFieldKindsInTheOrderOfTheRows) {
    const std::string list = "SELECT FldArt_Dsn FROM EmskDet WHERE Emsk_Dsn ='E' ORDER BY Dsn";
    host.answer(list, {.columns = {"FldArt_Dsn"}, .rows = {{"F2"}, {"F1"}}});
    EXPECT_EQ(app->EMSK_GetFldArtDsnList("E"), "F2,F1");
    EXPECT_EQ(app->EMSK_GetFldArtDsnList("X"), "");
    EXPECT_EQ(host.log().front(), list);
}

TEST_F(EntryMasksTest, AddFldArtAddsARow) {
    EXPECT_TRUE(app->EMSK_AddFldArt("E", "F", true, 255, "acl", "17"));
    EXPECT_EQ(host.log(), (Lines{add, "AddNew", "DSN = 'GUID-1'", "EMSK_DSN = 'E'",
                                 "FLDART_DSN = 'F'", "DEFAULT_ACL = 'acl'", "PFLICHTFELD = 1",
                                 "BACKCOLOR = 255", "FLDARTOP_FILTER = '17'", "Update"}));
}

TEST_F(EntryMasksTest, AddFldArtHasDefaults) {
    app->EMSK_AddFldArt("E", "F");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.begin() + 5, log.end()),
              (Lines{"DEFAULT_ACL = ''", "PFLICHTFELD = 0", "BACKCOLOR = 0", "FLDARTOP_FILTER = ''",
                     "Update"}));
}

TEST_F(EntryMasksTest, AddFldArtCutsTheFilter) {
    for (const std::size_t more : {0U, 1U}) {
        host.clear_log();
        app->EMSK_AddFldArt("E", "F", false, 0, "", repeated("ö", 250 + more));
        EXPECT_EQ(host.log()[8], "FLDARTOP_FILTER = '" + repeated("ö", 250) + "'");
    }
    host.clear_log();
    app->EMSK_AddFldArt("E", "F", false, 0, "", repeated("f", 249) + "🏠");
    EXPECT_EQ(host.log()[8], "FLDARTOP_FILTER = '" + repeated("f", 249) + "'");
}

TEST_F(EntryMasksTest, AddFldArtLeavesAFieldKindThatIsThere) {
    host.answer(add, row({{"DSN", "D"}}));
    EXPECT_FALSE(app->EMSK_AddFldArt("E", "F", true));
    EXPECT_EQ(host.log(), Lines{add});
}

TEST_F(EntryMasksTest, AddFldArtWithoutAKeyAsksNothing) {
    EXPECT_FALSE(app->EMSK_AddFldArt("", "F"));
    EXPECT_FALSE(app->EMSK_AddFldArt("E", ""));
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(EntryMasksTest, DelFldArtDeletesTheFirstRowFound) {
    host.answer(remove, {.columns = {"Dsn"}, .rows = {{"D1"}, {"D2"}}});
    EXPECT_TRUE(app->EMSK_DelFldArt("E", "F"));
    EXPECT_EQ(host.log(), (Lines{remove, "Delete 1", "Update"}));
}

TEST_F(EntryMasksTest, DelFldArtOfAFieldKindThatTheMaskLacksGivesFalse) {
    EXPECT_FALSE(app->EMSK_DelFldArt("E", "F"));
    EXPECT_FALSE(app->EMSK_DelFldArt("", ""));
    EXPECT_EQ(host.log(),
              (Lines{remove, "SELECT Dsn FROM EmskDet WHERE Emsk_Dsn =''AND FldArt_Dsn =''"}));
}

TEST_F(EntryMasksTest, ContainsFldArtAsksForTheRow) {
    EXPECT_FALSE(app->EMSK_ContainsFldArt("E", "F"));
    host.answer(field("Dsn"), row({{"Dsn", "D"}}));
    EXPECT_TRUE(app->EMSK_ContainsFldArt("E", "F"));
    EXPECT_EQ(host.log(), (Lines{field("Dsn"), field("Dsn")}));
}

TEST_F(EntryMasksTest, GetFieldGivesTheValueAsItIs) {
    host.answer(field("Backcolor"), row({{"Backcolor", 255}}));
    EXPECT_EQ(app->EMSK_GetField("E", "F", "Backcolor"), Variant(255));
}

TEST_F(EntryMasksTest, GetFieldOfAFieldKindThatTheMaskLacksIsNull) {
    EXPECT_EQ(app->EMSK_GetField("E", "F", "Backcolor"), Variant(Null{}));
}

TEST_F(EntryMasksTest, TypedReadingsConvert) {
    host.answer(field("DEFAULT_ACL"), row({{"DEFAULT_ACL", "acl"}}));
    host.answer(field("Backcolor"), row({{"Backcolor", 255.0}}));
    host.answer(field("FldArtOp_Filter"), row({{"FldArtOp_Filter", "17"}}));
    host.answer(field("Pflichtfeld"), row({{"Pflichtfeld", std::int16_t{1}}}));
    EXPECT_EQ(app->EMSK_GetDefaultACL("E", "F"), "acl");
    EXPECT_EQ(app->EMSK_GetBackcolor("E", "F"), 255);
    EXPECT_EQ(app->EMSK_GetFldArtOpFilter("E", "F"), 17);
    EXPECT_TRUE(app->EMSK_GetMandatory("E", "F"));
    EXPECT_EQ(host.log(), (Lines{field("DEFAULT_ACL"), field("Backcolor"), field("FldArtOp_Filter"),
                                 field("Pflichtfeld")}));
}

TEST_F(EntryMasksTest, TypedReadingsOfAFieldKindThatTheMaskLacksAreEmpty) {
    EXPECT_EQ(app->EMSK_GetDefaultACL("E", "F"), "");
    EXPECT_EQ(app->EMSK_GetBackcolor("E", "F"), 0);
    EXPECT_EQ(app->EMSK_GetFldArtOpFilter("E", "F"), 0);
    EXPECT_FALSE(app->EMSK_GetMandatory("E", "F"));
}

TEST_F(EntryMasksTest, AnOptionFilterThatIsNoNumberIsError13) {
    host.answer(field("FldArtOp_Filter"), row({{"FldArtOp_Filter", "alle"}}));
    expect_error_number(13, [&] { app->EMSK_GetFldArtOpFilter("E", "F"); });
}

TEST(EntryMasksWithoutASession, RaiseError601) {
    const auto app = make_object<Application>();
    const auto expect_601 = [](auto call) {
        expect_error(601, "", "CVDeveloper wurde nicht initialisiert", call);
    };
    expect_601([&] { app->EMSK_Create("x"); });
    expect_601([&] { app->EMSK_AddFldArt("E", "F"); });
    expect_601([&] { app->EMSK_DelFldArt("E", "F"); });
    expect_601([&] { app->EMSK_GetField("E", "F", "Dsn"); });
    expect_601([&] { app->EMSK_GetMandatory("E", "F"); });
}

}  // namespace
}  // namespace cvdeveloper
