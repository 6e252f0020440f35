#include "cvdeveloper/details/feature_catalogue.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"
#include "support/repeated.h"

namespace cvdeveloper {
namespace {

class FeatureCatalogueTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
};

TEST_F(FeatureCatalogueTest, NewMakesAnActiveRowAndDoesNotSaveIt) {
    app->MKM_New();
    EXPECT_EQ(host.log(),
              (Lines{"SELECT * FROM Mkm  WHERE 1=2", "AddNew", "DSN = 'GUID-1'", "Aktiv = 1"}));
}

TEST_F(FeatureCatalogueTest, CreateMakesAFeatureBlackOnWhite) {
    EXPECT_EQ(app->MKM_Create("Stammkunde", "010", "Notiz", "akt, OBJ", "Kunden"), "GUID-1");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM Mkm  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                                 "Aktiv = 1", "Merkmal = 'Stammkunde'", "Sortierung = '010'",
                                 "Notiz = 'Notiz'", "Gruppe = 'Kunden'", "BackColor = 16777215",
                                 "FontColor = 0", "akt = 1", "obj = 1", "Update"}));
}

TEST_F(FeatureCatalogueTest, CreateNeedsNoArguments) {
    EXPECT_EQ(app->MKM_Create(), "GUID-1");
    EXPECT_EQ(host.log().back(), "Update");
}

TEST_F(FeatureCatalogueTest, CreateCutsTextsToTheirColumns) {
    for (const std::size_t more : {0U, 1U, 5U}) {
        host.clear_log();
        app->MKM_Create(repeated("ü", 20 + more), repeated("s", 10 + more), "", "",
                        repeated("g", 254 + more));
        EXPECT_EQ(host.log()[4], "Merkmal = '" + repeated("ü", 20) + "'");
        EXPECT_EQ(host.log()[5], "Sortierung = '" + repeated("s", 10) + "'");
        EXPECT_EQ(host.log()[7], "Gruppe = '" + repeated("g", 254) + "'");
    }
    host.clear_log();
    app->MKM_Create(repeated("m", 19) + "🏠");
    EXPECT_EQ(host.log()[4], "Merkmal = '" + repeated("m", 19) + "'");
    host.clear_log();
    app->MKM_Create(repeated("m", 18) + "🏠");
    EXPECT_EQ(host.log()[4], "Merkmal = '" + repeated("m", 18) + "🏠'");
}

TEST_F(FeatureCatalogueTest, AnEmptyItemOfTheTableListIsHandedToTheRecordSet) {
    app->MKM_Create("x", "", "", "akt,,obj");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.end() - 4, log.end()), (Lines{"akt = 1", " = 1", "obj = 1", "Update"}));
}

TEST_F(FeatureCatalogueTest, FindDsnByNameOfAnUnknownNameIsEmpty) {
    host.answer("SELECT Dsn FROM Mkm  WHERE Merkmal = 'Stammkunde' ORDER BY DSN",
                row({{"Dsn", "M"}}));
    EXPECT_EQ(app->MKM_FindDsnByName("Stammkunde"), "M");
    EXPECT_EQ(app->MKM_FindDsnByName("Laufkunde"), "");
}

TEST(FeatureCatalogueWithoutASession, RaisesError601) {
    const auto app = make_object<Application>();
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert", [&] { app->MKM_Create("x"); });
}

}  // namespace
}  // namespace cvdeveloper
