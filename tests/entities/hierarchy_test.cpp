#include "cvdeveloper/entities/hierarchy.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

class HierarchyTest : public testing::Test {
  protected:
    static std::string activity(const std::string& key) {
        return "SELECT AKT.AKT_DSN FROM AKT INNER JOIN AKT as AKT1 ON AKT.AKT_DSN = AKT1.DSN "
               "WHERE AKT.DSN='" +
               key + "'";
    }
    static std::string address(const std::string& key) {
        return "SELECT AD.AD_DSN FROM AD INNER JOIN AD as AD1 ON AD.AD_DSN = AD1.DSN "
               "WHERE AD.DSN='" +
               key + "'";
    }
    void hang_activity(const std::string& key, const std::string& parent) {
        host.answer(activity(key), row({{"AKT_DSN", parent}}));
    }
    void name(const std::string& table, const std::string& key, const std::string& code) {
        host.answer("SELECT Kennung FROM " + table + " WHERE dsn='" + key + "' ",
                    row({{"Kennung", code}}));
    }

    RecordingHost host;
    Ref<Application> app = host.attached();
};

TEST_F(HierarchyTest, ParentsAreReadThroughAJoinSoThatDeletedOnesCountAsNone) {
    hang_activity("A", "P");
    EXPECT_EQ(app->AKT_GetParentAKTDsn("A"), "P");
    EXPECT_EQ(app->AKT_GetParentAKTDsn("P"), "");
    EXPECT_EQ(host.log(), (Lines{activity("A"), activity("P")}));
}

TEST_F(HierarchyTest, EachFamilyHasItsStatement) {
    app->OBJ_GetParentOBJDsn("K");
    app->PROJEKTE_GetParentProjekteDsn("K");
    app->AD_GetParentAdDsn("K");
    EXPECT_EQ(host.log(),
              (Lines{"SELECT Obj.Obj_DSN FROM Obj INNER JOIN Obj as Obj1 ON Obj.Obj_DSN = Obj1.DSN "
                     "WHERE Obj.DSN='K'",
                     "SELECT Projekte.Projekte_DSN FROM Projekte INNER JOIN Projekte as Projekte1 "
                     "ON Projekte.Projekte_DSN = Projekte1.DSN WHERE Projekte.DSN='K'",
                     address("K")}));
}

TEST_F(HierarchyTest, ANullParentIsNone) {
    host.answer(activity("A"), row({{"AKT_DSN", Null{}}}));
    EXPECT_EQ(app->AKT_GetParentAKTDsn("A"), "");
}

TEST_F(HierarchyTest, ARecordWithoutAParentIsItsOwnRoot) {
    EXPECT_EQ(app->AKT_GetRootAKTDsn("A"), "A");
    EXPECT_EQ(app->AD_GetRootAdDsn("A"), "A");
    EXPECT_EQ(app->OBJ_GetRootOBJDsn("A"), "A");
    EXPECT_EQ(app->PROJEKTE_GetRootProjekteDsn("A"), "A");
}

TEST_F(HierarchyTest, AnEmptyKeyIsItsOwnRootAndAsksNothing) {
    EXPECT_EQ(app->AKT_GetRootAKTDsn(""), "");
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(HierarchyTest, TheRootIsTheTopOfTheChain) {
    hang_activity("A", "P1");
    hang_activity("P1", "P2");
    EXPECT_EQ(app->AKT_GetRootAKTDsn("A"), "P2");
    EXPECT_EQ(host.log(), (Lines{activity("A"), activity("P1"), activity("P2")}));
}

TEST_F(HierarchyTest, AnActivitysLoopIsNoticedOneRoundLater) {
    hang_activity("A", "P1");
    hang_activity("P1", "P2");
    hang_activity("P2", "P1");
    name("AKT", "P1", "A-1");
    name("AKT", "P2", "A-2");
    expect_error(601, "AKT_GetRootAktDsn",
                 "Zyklische Verknüpfung zwischen Aktivität 'A-1' und 'A-2'",
                 [&] { app->AKT_GetRootAKTDsn("A"); });
    EXPECT_EQ(host.log(), (Lines{activity("A"), activity("P1"), activity("P2"), activity("P1"),
                                 "SELECT Kennung FROM AKT WHERE dsn='P1' ",
                                 "SELECT Kennung FROM AKT WHERE dsn='P2' "}));
}

TEST_F(HierarchyTest, AnActivityThatIsItsOwnParentIsNoticedAtTheSecondStep) {
    hang_activity("A", "A");
    name("AKT", "A", "A-1");
    expect_error(601, "AKT_GetRootAktDsn",
                 "Zyklische Verknüpfung zwischen Aktivität 'A-1' und 'A-1'",
                 [&] { app->AKT_GetRootAKTDsn("A"); });
    EXPECT_EQ(host.log()[0], activity("A"));
    EXPECT_EQ(host.log()[1], activity("A"));
}

TEST_F(HierarchyTest, AnAddressThatIsItsOwnParentIsNoticedAtTheFirstStep) {
    host.answer(address("A"), row({{"AD_DSN", "A"}}));
    name("AD", "A", "100001    ");
    expect_error(601, "AD_GetRootADDsn",
                 "Zyklische Verknüpfung zwischen Adresse '100001    ' und '100001    '",
                 [&] { app->AD_GetRootAdDsn("A"); });
    EXPECT_EQ(host.log(), (Lines{address("A"), "SELECT Kennung FROM AD WHERE dsn='A' ",
                                 "SELECT Kennung FROM AD WHERE dsn='A' "}));
}

TEST_F(HierarchyTest, ObjectsAndProjectsNameThemselvesInTheMessage) {
    host.answer(
        "SELECT Obj.Obj_DSN FROM Obj INNER JOIN Obj as Obj1 ON Obj.Obj_DSN = Obj1.DSN "
        "WHERE Obj.DSN='K'",
        row({{"OBJ_DSN", "K"}}));
    host.answer(
        "SELECT Projekte.Projekte_DSN FROM Projekte INNER JOIN Projekte as Projekte1 "
        "ON Projekte.Projekte_DSN = Projekte1.DSN WHERE Projekte.DSN='K'",
        row({{"PROJEKTE_DSN", "K"}}));
    name("OBJ", "K", "O-1");
    name("PROJEKTE", "K", "P-1");
    expect_error(601, "OBJ_GetRootOBJDsn", "Zyklische Verknüpfung zwischen Objekt 'O-1' und 'O-1'",
                 [&] { app->OBJ_GetRootOBJDsn("K"); });
    expect_error(601, "PROJEKTE_GetRootProjekteDsn",
                 "Zyklische Verknüpfung zwischen Projekt 'P-1' und 'P-1'",
                 [&] { app->PROJEKTE_GetRootProjekteDsn("K"); });
}

TEST(HierarchyWithoutASession, RaisesError601) {
    const auto app = make_object<Application>();
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert",
                 [&] { app->AKT_GetParentAKTDsn("A"); });
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert",
                 [&] { app->AD_GetRootAdDsn("A"); });
}

}  // namespace
}  // namespace cvdeveloper
