#include "cvdeveloper/details/features.h"

#include <gtest/gtest.h>

#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

class FeaturesTest : public testing::Test {
  protected:
    void link(const std::string& key, const std::string& feature, int times = 1) {
        Rows rows{.columns = {"DSN", "Link_DSN", "MKM_DSN"}, .rows = {}};
        for (int i = 0; i < times; ++i) {
            rows.rows.push_back({"L" + std::to_string(i), key, feature});
        }
        host.answer(question(key, feature), rows);
    }
    static std::string question(const std::string& key, const std::string& feature) {
        return "SELECT * FROM AKTMKM WHERE (link_dsn='" + key + "') AND (mkm_dsn='" + feature +
               "')";
    }

    RecordingHost host;
    Ref<Application> app = host.attached();
    Ref<clsBase> base = app->oBase();
};

TEST_F(FeaturesTest, ExistsAsksTheLinkTableInUpperCase) {
    link("K1", "A");
    EXPECT_TRUE(base->Mkm_Exists("Akt", "K1", "A"));
    EXPECT_FALSE(base->Mkm_Exists("Akt", "K1", "B"));
    EXPECT_EQ(host.log(), (Lines{question("K1", "A"), question("K1", "B")}));
}

TEST_F(FeaturesTest, SwitchWithBothKeysEmptyAsksAndWritesNothing) {
    EXPECT_FALSE(base->Mkm_Switch("AKT", "K1", "", ""));
    EXPECT_EQ(host.log(), Lines{question("K1", "")});
}

TEST_F(FeaturesTest, SwitchWithoutAnOldKeyAdds) {
    EXPECT_TRUE(base->Mkm_Switch("AKT", "K1", "", "A"));
    EXPECT_EQ(host.log(), (Lines{question("K1", "A"), "AddNew", "DSN = 'GUID-1'", "Link_DSN = 'K1'",
                                 "MKM_DSN = 'A'", "Update"}));
}

TEST_F(FeaturesTest, SwitchDoesNotAddWhatIsThere) {
    link("K1", "A");
    EXPECT_FALSE(base->Mkm_Switch("AKT", "K1", "", "A"));
    EXPECT_EQ(host.log(), Lines{question("K1", "A")});
}

TEST_F(FeaturesTest, SwitchOfAMissingFeatureAddsNothingInItsPlace) {
    EXPECT_FALSE(base->Mkm_Switch("AKT", "K1", "A", "B"));
    EXPECT_EQ(host.log(), Lines{question("K1", "A")});
}

TEST_F(FeaturesTest, SwitchChangesTheFirstLinkWithoutLookingForTheNewOne) {
    link("K1", "A", 2);
    link("K1", "B");
    EXPECT_TRUE(base->Mkm_Switch("AKT", "K1", "A", "B"));
    EXPECT_EQ(host.log(), (Lines{question("K1", "A"), "MKM_DSN = 'B'", "Update"}));
}

TEST_F(FeaturesTest, SwitchWithoutANewKeyDeletesTheFirstLink) {
    link("K1", "A", 2);
    EXPECT_TRUE(base->Mkm_Switch("AKT", "K1", "A", ""));
    EXPECT_EQ(host.log(), (Lines{question("K1", "A"), "Delete 1", "Update"}));
}

TEST_F(FeaturesTest, AddTakesEachKeyOfTheListAndGivesFalse) {
    EXPECT_FALSE(base->Mkm_Add("AKT", "K1", "A,,B"));
    EXPECT_EQ(host.log(),
              (Lines{question("K1", "A"), "AddNew", "DSN = 'GUID-1'", "Link_DSN = 'K1'",
                     "MKM_DSN = 'A'", "Update", question("K1", ""), question("K1", "B"), "AddNew",
                     "DSN = 'GUID-2'", "Link_DSN = 'K1'", "MKM_DSN = 'B'", "Update"}));
}

TEST_F(FeaturesTest, DelTakesOneLinkForEachKeyAndGivesFalse) {
    link("K1", "A", 2);
    EXPECT_FALSE(base->Mkm_Del("AKT", "K1", "A,C"));
    EXPECT_EQ(host.log(), (Lines{question("K1", "A"), "Delete 1", "Update", question("K1", "C")}));
}

TEST_F(FeaturesTest, GetJoinsTheKeysInTheHostsOrder) {
    host.answer("SELECT * FROM AktMkm WHERE Link_dsn='K1'",
                {.columns = {"Mkm_Dsn"}, .rows = {{"B"}, {"A"}}});
    EXPECT_EQ(base->Mkm_Get("Akt", "K1"), "B,A");
    EXPECT_EQ(base->Mkm_Get("Akt", "K2"), "");
}

TEST_F(FeaturesTest, CopyGivesTheDestinationWhatItLacks) {
    host.answer("SELECT * FROM AKTMkm WHERE Link_dsn='K1'",
                {.columns = {"Mkm_Dsn"}, .rows = {{"A"}, {"B"}}});
    link("K2", "B");
    base->Mkm_Copy("AKT", "K1", "K2");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM AKTMkm WHERE Link_dsn='K1'", question("K2", "A"),
                                 "AddNew", "DSN = 'GUID-1'", "Link_DSN = 'K2'", "MKM_DSN = 'A'",
                                 "Update", question("K2", "B")}));
}

TEST_F(FeaturesTest, CopyFromARecordWithoutFeaturesChangesNothing) {
    base->Mkm_Copy("AKT", "K1", "K2");
    EXPECT_EQ(host.log(), Lines{"SELECT * FROM AKTMkm WHERE Link_dsn='K1'"});
}

}  // namespace
}  // namespace cvdeveloper
