#include "cvdeveloper/details/detail_values.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"
#include "support/repeated.h"

namespace cvdeveloper {
namespace {

class DetailValuesTest : public testing::Test {
  protected:
    static std::string question(const std::string& columns) {
        return "SELECT " + columns +
               " FROM Akt INNER JOIN AKTDET ON Akt.dsn = AKTDET.Akt_dsn WHERE (Akt.DSN='K') AND "
               "(AKTDET.FLDART_DSN='F') ORDER BY AKTDET.DSN";
    }
    // What was done after the question.
    [[nodiscard]] Lines changes() const {
        const Lines log = host.log();
        return {log.begin() + 1, log.end()};
    }

    RecordingHost host;
    Ref<Application> app = host.attached();
    Ref<clsBase> base = app->oBase();
    const std::string whole = question("AKTDET.*");
    const Rows one_row = row({{"DSN", "D"}, {"Eingabe", "alt"}, {"ACL", "x"}});
};

TEST_F(DetailValuesTest, GetValueReadsTheTextOfTheFirstRow) {
    host.answer(question("AKTDET.Eingabe"), {.columns = {"Eingabe"}, .rows = {{"120 qm"}, {"x"}}});
    EXPECT_EQ(base->Det_GetValue("Akt", "K", "F"), "120 qm");
    EXPECT_EQ(host.log(), Lines{question("AKTDET.Eingabe")});
}

TEST_F(DetailValuesTest, GetValueOfNoRowOrOfNullIsEmpty) {
    EXPECT_EQ(base->Det_GetValue("Akt", "K", "F"), "");
    host.answer(question("AKTDET.Eingabe"), row({{"Eingabe", Null{}}}));
    EXPECT_EQ(base->Det_GetValue("Akt", "K", "F"), "");
}

TEST_F(DetailValuesTest, GetOptionDsnReadsTheOptionOfTheFirstRow) {
    host.answer(question("AKTDET.FldArtOp_Dsn"), row({{"FldArtOp_Dsn", "P"}}));
    EXPECT_EQ(base->Det_GetOptionDsn("Akt", "K", "F"), "P");
    EXPECT_EQ(base->Det_GetOptionDsn("Akt", "", "F"), "");
}

TEST_F(DetailValuesTest, GetNumValueDeliversTheBounds) {
    const std::string numbers = question("AKTDET.Von_Num, AKTDET.Bis_Num");
    host.answer(numbers, row({{"Von_Num", 2.5}, {"Bis_Num", Null{}}}));
    Variant from;
    Variant to;
    EXPECT_TRUE(base->Det_GetNumValue("Akt", "K", "F", from, to));
    EXPECT_EQ(from, Variant(2.5));
    EXPECT_EQ(to, Variant(0.0));
    EXPECT_EQ(host.log(), Lines{numbers});
}

TEST_F(DetailValuesTest, GetNumValueLeavesTheBoundsWhereThereIsNoRow) {
    Variant from("alt");
    Variant to(7);
    EXPECT_FALSE(base->Det_GetNumValue("Akt", "K", "F", from, to));
    EXPECT_FALSE(base->Det_GetNumValue("Akt", "K", "", from, to));
    EXPECT_EQ(from, Variant("alt"));
    EXPECT_EQ(to, Variant(7));
}

TEST_F(DetailValuesTest, GetNumValueByNameWritesTheCallersVariables) {
    host.answer(question("AKTDET.Von_Num, AKTDET.Bis_Num"),
                row({{"Von_Num", 2.0}, {"Bis_Num", 3.0}}));
    std::vector<Variant> arguments{"Akt", "K", "F", 0, 0};
    base->invoke("Det_GetNumValue", InvokeKind::Method,
                 {.values = arguments, .by_reference = 0b11000});
    EXPECT_EQ(arguments[3], Variant(2.0));
    EXPECT_EQ(arguments[4], Variant(3.0));
}

TEST_F(DetailValuesTest, SetValueAddsARowWhereThereIsNone) {
    EXPECT_TRUE(base->Det_SetValue("Akt", "K", "F", "neu"));
    EXPECT_EQ(host.log(), (Lines{whole, "AddNew", "DSN = 'GUID-1'", "Akt_DSN = 'K'",
                                 "FldArt_DSN = 'F'", "Eingabe = 'neu'", "Update"}));
}

TEST_F(DetailValuesTest, SetValueChangesTheFirstRowWhereThereIsOne) {
    host.answer(whole, one_row);
    EXPECT_TRUE(base->Det_SetValue("Akt", "K", "F", "neu"));
    EXPECT_EQ(host.log(), (Lines{whole, "Eingabe = 'neu'", "Update"}));
}

TEST_F(DetailValuesTest, SetValueWritesAnAclThatIsGivenAnEmptyOneToo) {
    host.answer(whole, one_row);
    base->Det_SetValue("Akt", "K", "F", "neu", "");
    EXPECT_EQ(changes(), (Lines{"Eingabe = 'neu'", "ACL = ''", "Update"}));
}

TEST_F(DetailValuesTest, SetValueStoresAnEmptyLinkAsNull) {
    host.answer(whole, one_row);
    base->Det_SetValue("Akt", "K", "F", "neu", "[NOTHING]", "");
    EXPECT_EQ(changes(), (Lines{"Eingabe = 'neu'", "Link_DSN = Null", "Update"}));
    host.clear_log();
    base->Det_SetValue("Akt", "K", "F", "neu", "acl", "L");
    EXPECT_EQ(changes(), (Lines{"Eingabe = 'neu'", "ACL = 'acl'", "Link_DSN = 'L'", "Update"}));
}

TEST_F(DetailValuesTest, SetValueKeepsAHundredCharacters) {
    const auto stored = [&](const std::string& value) {
        host.clear_log();
        host.answer(whole, one_row);
        base->Det_SetValue("Akt", "K", "F", value);
        return changes().front();
    };
    EXPECT_EQ(stored(repeated("a", 100)), "Eingabe = '" + repeated("a", 100) + "'");
    EXPECT_EQ(stored(repeated("a", 101)), "Eingabe = '" + repeated("a", 100) + "'");
    EXPECT_EQ(stored(repeated("ü", 100)), "Eingabe = '" + repeated("ü", 100) + "'");
    EXPECT_EQ(stored(repeated("ü", 101)), "Eingabe = '" + repeated("ü", 100) + "'");
    // A character outside the basic plane takes two of them and is never cut in two.
    EXPECT_EQ(stored(repeated("a", 98) + "🏠"), "Eingabe = '" + repeated("a", 98) + "🏠'");
    EXPECT_EQ(stored(repeated("a", 99) + "🏠"), "Eingabe = '" + repeated("a", 99) + "'");
}

TEST_F(DetailValuesTest, WithoutATableOrAKeyNothingIsAskedOrWritten) {
    EXPECT_FALSE(base->Det_SetValue("", "K", "F", "x"));
    EXPECT_FALSE(base->Det_SetValue("Akt", "", "F", "x"));
    EXPECT_FALSE(base->Det_SetValue("Akt", "K", "", "x"));
    EXPECT_FALSE(base->Det_Delete("Akt", "K", ""));
    EXPECT_FALSE(base->Det_SetOptionDsn("Akt", "", "F", "P"));
    EXPECT_FALSE(base->Det_SetOptionDsn("Akt", "K", "F", ""));
    EXPECT_FALSE(base->Det_SetValueWithEMSK("Akt", "K", "", "x"));
    EXPECT_EQ(base->Det_GetValue("", "K", "F"), "");
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(DetailValuesTest, SetValueWithoutAMaskLeavesTheAcl) {
    host.answer(whole, one_row);
    EXPECT_TRUE(base->Det_SetValueWithEMSK("Akt", "K", "F", "neu"));
    EXPECT_EQ(host.log(), (Lines{whole, "Eingabe = 'neu'", "Update"}));
}

TEST_F(DetailValuesTest, SetValueWithAMaskTakesTheMasksAcl) {
    const std::string mask =
        "SELECT DEFAULT_ACL FROM EmskDet WHERE Emsk_Dsn ='E' AND FldArt_Dsn ='F'";
    host.answer(mask, row({{"DEFAULT_ACL", "nur ich"}}));
    host.answer(whole, one_row);
    EXPECT_TRUE(base->Det_SetValueWithEMSK("Akt", "K", "F", "neu", "E", "L"));
    EXPECT_EQ(host.log(), (Lines{mask, whole, "Eingabe = 'neu'", "ACL = 'nur ich'",
                                 "Link_DSN = 'L'", "Update"}));
}

TEST_F(DetailValuesTest, AMaskThatLacksTheFieldKindEmptiesTheAcl) {
    host.answer(whole, one_row);
    base->Det_SetValueWithEMSK("Akt", "K", "F", "neu", "E");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.begin() + 2, log.end()), (Lines{"Eingabe = 'neu'", "ACL = ''", "Update"}));
}

TEST_F(DetailValuesTest, TheMaskIsAskedEvenWhereAKeyIsMissing) {
    EXPECT_FALSE(base->Det_SetValueWithEMSK("Akt", "", "F", "neu", "E"));
    EXPECT_EQ(host.log(),
              Lines{"SELECT DEFAULT_ACL FROM EmskDet WHERE Emsk_Dsn ='E' AND FldArt_Dsn ='F'"});
}

TEST_F(DetailValuesTest, SetOptionClearsTheOtherValuesOfTheFirstRow) {
    host.answer(whole, one_row);
    EXPECT_TRUE(base->Det_SetOptionDsn("Akt", "K", "F", "P"));
    EXPECT_EQ(changes(),
              (Lines{"Eingabe = Null", "von_str = Null", "bis_str = Null", "Link_DSN = Null",
                     "von_num = 0", "bis_num = 0", "FldArtOp_Dsn = 'P'", "Update"}));
}

TEST_F(DetailValuesTest, SetOptionAddsARowWhereThereIsNone) {
    EXPECT_TRUE(base->Det_SetOptionDsn("Akt", "K", "F", "P", "acl"));
    EXPECT_EQ(changes(), (Lines{"AddNew", "DSN = 'GUID-1'", "Akt_DSN = 'K'", "FldArt_DSN = 'F'",
                                "ACL = 'acl'", "FldArtOp_Dsn = 'P'", "Update"}));
}

TEST_F(DetailValuesTest, DeleteRemovesEveryRowAndWritesOnce) {
    host.answer(whole, {.columns = {"DSN"}, .rows = {{"D1"}, {"D2"}}});
    EXPECT_TRUE(base->Det_Delete("Akt", "K", "F"));
    EXPECT_EQ(host.log(), (Lines{whole, "Delete 1", "Delete 2", "Update"}));
}

TEST_F(DetailValuesTest, DeleteOfNoRowWritesNothing) {
    EXPECT_FALSE(base->Det_Delete("Akt", "K", "F"));
    EXPECT_EQ(host.log(), Lines{whole});
}

TEST_F(DetailValuesTest, TheTablesNameIsUpperCasedInTheDetailTableOnly) {
    base->Det_GetValue("Verträge", "K", "F");
    EXPECT_EQ(host.log(),
              Lines{"SELECT VERTRÄGEDET.Eingabe FROM Verträge INNER JOIN VERTRÄGEDET ON "
                    "Verträge.dsn = VERTRÄGEDET.Verträge_dsn WHERE (Verträge.DSN='K') AND "
                    "(VERTRÄGEDET.FLDART_DSN='F') ORDER BY VERTRÄGEDET.DSN"});
}

class DetailCopyTest : public DetailValuesTest {
  protected:
    const std::string source =
        "SELECT AktDet.* FROM Akt INNER JOIN AktDet ON Akt.Dsn = AktDet.Akt_Dsn WHERE "
        "AktDet.Akt_dsn='S'";
    const std::string destination =
        "SELECT AktDet.* FROM Akt INNER JOIN AktDet ON Akt.Dsn = AktDet.Akt_Dsn WHERE 1=2";
};

TEST_F(DetailCopyTest, CopiesEveryRowUnderANewKeyAndWritesOnce) {
    host.answer(source, {.columns = {"DSN", "Akt_DSN", "Eingabe", "STAMP"},
                         .rows = {{"D1", "S", "a", 5}, {"D2", "S", "b", 6}}});
    EXPECT_EQ(base->Det_Copy("Akt", "S", "D"), 2);
    EXPECT_EQ(host.log(), (Lines{source, destination, "AddNew", "Dsn = 'GUID-1'", "Akt_DSN = 'S'",
                                 "Eingabe = 'a'", "Akt_Dsn = 'D'", "AddNew", "Dsn = 'GUID-2'",
                                 "Akt_DSN = 'S'", "Eingabe = 'b'", "Akt_Dsn = 'D'", "Update"}));
}

TEST_F(DetailCopyTest, CopyOfNothingWritesNothing) {
    EXPECT_EQ(base->Det_Copy("Akt", "S", "D"), 0);
    EXPECT_EQ(host.log(), (Lines{source, destination}));
}

TEST_F(DetailCopyTest, CopyHasNoGuardForEmptyKeys) {
    EXPECT_EQ(base->Det_Copy("Akt", "", "D"), 0);
    EXPECT_EQ(host.log().size(), 2U);
}

TEST_F(DetailCopyTest, TheOwnerIsWrittenIntoAktDsnWhateverTheTable) {
    host.answer(
        "SELECT OBJDet.* FROM OBJ INNER JOIN OBJDet ON OBJ.Dsn = OBJDet.OBJ_Dsn WHERE "
        "OBJDet.OBJ_dsn='S'",
        row({{"DSN", "D1"}, {"OBJ_DSN", "S"}}));
    base->Det_Copy("OBJ", "S", "D");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.begin() + 2, log.end()),
              (Lines{"AddNew", "Dsn = 'GUID-1'", "OBJ_DSN = 'S'", "Akt_Dsn = 'D'", "Update"}));
}

TEST(DetailValuesWithoutASession, RaiseError601) {
    const auto base = make_object<Application>()->oBase();
    const auto expect_601 = [](auto call) {
        expect_error(601, "", "CVDeveloper wurde nicht initialisiert", call);
    };
    expect_601([&] { base->Det_GetValue("Akt", "K", "F"); });
    expect_601([&] { base->Det_SetValue("Akt", "K", "F", "x"); });
    expect_601([&] { base->Det_SetOptionDsn("Akt", "K", "F", "P"); });
    expect_601([&] { base->Det_Copy("Akt", "S", "D"); });
}

}  // namespace
}  // namespace cvdeveloper
