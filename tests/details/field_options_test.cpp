#include "cvdeveloper/details/field_options.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"
#include "support/repeated.h"

namespace cvdeveloper {
namespace {

class FieldOptionsTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
};

TEST_F(FieldOptionsTest, NewMakesARowWithAKeyAlone) {
    app->FldArtOp_New();
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM FldArtOp  WHERE 1=2", "AddNew", "DSN = 'GUID-1'"}));
}

TEST_F(FieldOptionsTest, CreateFillsTheColumnsInTheirOrder) {
    EXPECT_EQ(app->FldArtOp_Create("Gasheizung", "F", "1", "Gas", true), "GUID-1");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM FldArtOp  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                                 "Bezeichnung = 'Gasheizung'", "Wert = '1'", "Kurz = 'Gas'",
                                 "FldArt_Dsn = 'F'", "Defaultwert = 1", "Update"}));
}

TEST_F(FieldOptionsTest, CreateMakesNoDefaultUnlessAskedTo) {
    app->FldArtOp_Create("Gasheizung", "F");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.begin() + 3, log.end()),
              (Lines{"Bezeichnung = 'Gasheizung'", "Wert = ''", "Kurz = ''", "FldArt_Dsn = 'F'",
                     "Defaultwert = 0", "Update"}));
}

TEST_F(FieldOptionsTest, CreateWithoutAFieldKindIsAnErrorAndWritesNothing) {
    expect_error(601, "FldArtOp_Create", "FldArt_Dsn ist ein Pflichtfeld",
                 [&] { app->FldArtOp_Create("Gasheizung", ""); });
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM FldArtOp  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                                 "Bezeichnung = 'Gasheizung'", "Wert = ''", "Kurz = ''"}));
}

TEST_F(FieldOptionsTest, CreateCutsTextsToTheirColumns) {
    for (const std::size_t more : {0U, 1U}) {
        host.clear_log();
        app->FldArtOp_Create(repeated("ä", 250 + more), "F", repeated("w", 30 + more),
                             repeated("k", 7 + more));
        EXPECT_EQ(host.log()[3], "Bezeichnung = '" + repeated("ä", 250) + "'");
        EXPECT_EQ(host.log()[4], "Wert = '" + repeated("w", 30) + "'");
        EXPECT_EQ(host.log()[5], "Kurz = 'kkkkkkk'");
    }
    host.clear_log();
    app->FldArtOp_Create("", "F", "", "kkkkkk🏠");
    EXPECT_EQ(host.log()[5], "Kurz = 'kkkkkk'");
    host.clear_log();
    app->FldArtOp_Create("", "F", "", "kkkkk🏠");
    EXPECT_EQ(host.log()[5], "Kurz = 'kkkkk🏠'");
}

TEST_F(FieldOptionsTest, FindByFldArtOrdersByText) {
    app->FldArtOp_FindByFldArt("F");
    EXPECT_EQ(host.log(),
              Lines{"SELECT * FROM FldArtOp  WHERE FldArt_Dsn = 'F' ORDER BY Bezeichnung"});
}

TEST_F(FieldOptionsTest, FindDsnByNameOfATextThatNoOptionHasIsEmpty) {
    host.answer(
        "SELECT Dsn FROM FldArtOp  WHERE FldArt_Dsn = 'F' AND Bezeichnung = 'Gas' "
        "ORDER BY DSN",
        row({{"Dsn", "P"}}));
    EXPECT_EQ(app->FldArtOp_FindDsnByName("F", "Gas"), "P");
    EXPECT_EQ(app->FldArtOp_FindDsnByName("F", "Öl"), "");
}

TEST(FieldOptionsWithoutASession, RaiseError601) {
    const auto app = make_object<Application>();
    const auto expect_601 = [](auto call) {
        expect_error(601, "", "CVDeveloper wurde nicht initialisiert", call);
    };
    expect_601([&] { app->FldArtOp_New(); });
    expect_601([&] { app->FldArtOp_Create("Gas", ""); });
    expect_601([&] { app->FldArtOp_FindByFldArt("F"); });
}

}  // namespace
}  // namespace cvdeveloper
