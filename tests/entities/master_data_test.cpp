#include "cvdeveloper/entities/master_data.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class MasterDataTest : public RecordTest {
  protected:
    MasterData master_data{session};
};

TEST_F(MasterDataTest, FindReadsTheWholeTable) {
    master_data.STD_Find();
    EXPECT_EQ(host.log(), Lines{"SELECT * FROM Std "});
}

TEST_F(MasterDataTest, FieldIsReadAnewEachTime) {
    answer_std("TITEL", "Dr.");
    answer_std("TITEL", Null{});
    EXPECT_EQ(master_data.STD_GetField("TITEL"), "Dr.");
    EXPECT_EQ(master_data.STD_GetField("TITEL"), "");
    EXPECT_EQ(host.log(), (Lines{"SELECT TITEL FROM Std", "SELECT TITEL FROM Std"}));
}

TEST_F(MasterDataTest, FieldOfAnEmptyTableIsEmpty) {
    EXPECT_EQ(master_data.STD_GetField("Kennung_AD"), "");
}

TEST_F(MasterDataTest, UnknownFieldIsTheDatabasesError) {
    host.refuse("SELECT Unfug FROM Std", AutomationError(-2147217900, "Host", "kein Feld"));
    expect_error(-2147217900, "Host", "kein Feld", [&] { master_data.STD_GetField("Unfug"); });
}

TEST_F(MasterDataTest, SalutationListIsMadeOfItsField) {
    answer_std("ANREDE", "Frau\tFrau\tSehr geehrte\r\nHerr\tHerrn\tSehr geehrter");
    answer_std("ANREDE", Null{});
    EXPECT_EQ(master_data.STD_GetSalutationList()->SalutationLong(2), "Herrn");
    EXPECT_EQ(master_data.STD_GetSalutationList()->Count(), 0);
}

TEST_F(MasterDataTest, EverythingIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { master_data.STD_Find(); });
    expect_error_number(601, [&] { master_data.STD_GetField("TITEL"); });
    expect_error_number(601, [&] { master_data.STD_GetSalutationList(); });
}

}  // namespace
}  // namespace cvdeveloper
