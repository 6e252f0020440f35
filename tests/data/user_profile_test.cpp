#include "cvdeveloper/data/user_profile.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

class UserProfileTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
    Ref<clsBase> base = app->oBase();
};

TEST_F(UserProfileTest, FeaturesAreListedWithoutTheEmptyOnes) {
    host.set_user({{"STD_MKM1", "12"},
                   {"STD_MKM2", Null{}},
                   {"STD_MKM3", "30"},
                   {"STD_MKM4", ""},
                   {"STD_MKM5", Null{}}});
    EXPECT_EQ(base->BEN_MerkmalDsnCommaList(), "12,30");
    EXPECT_EQ(host.log(), Lines(5, "CurrentUserRS"));
}

TEST_F(UserProfileTest, NoFeaturesAreAnEmptyList) {
    host.set_user({{"VOR_MKM1", ""},
                   {"VOR_MKM2", ""},
                   {"VOR_MKM3", ""},
                   {"VOR_MKM4", ""},
                   {"VOR_MKM5", Null{}}});
    EXPECT_EQ(base->BEN_VorlageDsnCommaList(), "");
}

TEST_F(UserProfileTest, ActivityTypesOfEmailsAndScansAreTheUsers) {
    host.set_user({{"FaxArt_Dsn", "ART1"}, {"ScanArt_Dsn", "ART2"}});
    EXPECT_EQ(base->BEN_EMailAktArt(), "ART1");
    EXPECT_EQ(base->BEN_ScannerAktArt(), "ART2");
}

TEST_F(UserProfileTest, RightsTemplateIsWhatFollowsTheFirstBarOfItsLine) {
    host.set_user({{"Rechteschablonen", "Alle|A:1\r\nIntern|I:1|x\r\n\r\nStandard|S:1"}});
    EXPECT_EQ(base->BEN_Rechteschablone(1), "A:1");
    EXPECT_EQ(base->BEN_Rechteschablone(2), "I:1|x");
    EXPECT_EQ(base->BEN_Rechteschablone(3), "");
    EXPECT_EQ(base->BEN_StdACL(), "S:1");
    EXPECT_EQ(base->BEN_Rechteschablone(5), "");
    EXPECT_EQ(base->BEN_Rechteschablone(0), "");
    EXPECT_EQ(base->BEN_Rechteschablone(-1), "");
}

TEST_F(UserProfileTest, FourthTemplateOfThreeLinesIsEmpty) {
    host.set_user({{"Rechteschablonen", "A|1\r\nB|2\r\nC|3"}});
    EXPECT_EQ(base->BEN_StdACL(), "");
    host.set_user({{"Rechteschablonen", Null{}}});
    EXPECT_EQ(base->BEN_StdACL(), "");
}

TEST_F(UserProfileTest, OwnFeatureIsFoundByTheLogOnName) {
    host.set_user({{"Login_Name", "chef"}});
    EXPECT_EQ(base->BEN_Mkm(), "");
    host.answer("SELECT * FROM Mkm  WHERE Benutzer='chef' ORDER BY Touch", row({{"Dsn", "MKM1"}}));
    EXPECT_EQ(base->BEN_Mkm(), "MKM1");
}

TEST_F(UserProfileTest, MissingFieldIsTheCallersError) {
    host.set_user({{"Login_Name", "chef"}});
    expect_error_number(3265, [&] { return base->BEN_EMailAktArt(); });
}

}  // namespace
}  // namespace cvdeveloper
