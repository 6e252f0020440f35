#include "cvdeveloper/data/table_operations.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

class TableOperationsTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
    Ref<clsBase> base = app->oBase();
};

Rows keys(std::initializer_list<const char*> values) {
    Rows rows{.columns = {"Dsn"}, .rows = {}};
    for (const char* value : values) {
        rows.rows.push_back({Variant(value)});
    }
    return rows;
}

TEST_F(TableOperationsTest, FindPutsTwoBlanksBeforeTheCondition) {
    base->Sql_Find("AD", "Ort = 'Essen'", "Name");
    base->Sql_Find("AD", "Ort = 'Essen'");
    base->Sql_Find("AD", "", "");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM AD  WHERE Ort = 'Essen' ORDER BY Name",
                                 "SELECT * FROM AD  WHERE Ort = 'Essen'", "SELECT * FROM AD "}));
}

TEST_F(TableOperationsTest, ConditionOfBlanksIsNone) {
    base->Sql_Find("AD", "   ", " Name");
    EXPECT_EQ(host.log(), Lines{"SELECT * FROM AD  ORDER BY  Name"});
}

TEST_F(TableOperationsTest, GetDsnGivesTheFirstKeyOrNothing) {
    host.answer("SELECT Dsn FROM OBJ  WHERE Aktiv = 1 ORDER BY Kennung", keys({"K2", "K1"}));
    EXPECT_EQ(base->Sql_GetDSN("OBJ", "Aktiv = 1", "Kennung"), "K2");
    EXPECT_EQ(base->Sql_GetDSN("OBJ", "Aktiv = 0"), "");
}

TEST_F(TableOperationsTest, NullKeyInGetDsnIsTheCallersError) {
    host.answer("SELECT Dsn FROM OBJ ", row({{"Dsn", Null{}}}));
    expect_error_number(94, [&] { base->Sql_GetDSN("OBJ", ""); });
}

TEST_F(TableOperationsTest, FindByKeyAsksWithTheHostsLiteral) {
    base->Sql_FindByDSN("AKT", "K1");
    EXPECT_EQ(host.log(), Lines{"SELECT * FROM AKT  WHERE DSN = 'K1'"});
}

TEST_F(TableOperationsTest, ShortHumanKeysAreFilledUpToTenCharacters) {
    base->Sql_FindByKennung("AD", "A-12345");
    base->Sql_FindDsnByKennung("AD", "A-12345");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM AD  WHERE Kennung = 'A-12345   ' ORDER BY DSN",
                                 "SELECT Dsn FROM AD  WHERE Kennung = 'A-12345   ' ORDER BY DSN"}));
}

TEST_F(TableOperationsTest, LongHumanKeysAreNotCut) {
    base->Sql_FindByKennung("AD", "A-1234567890");
    EXPECT_EQ(host.log(), Lines{"SELECT * FROM AD  WHERE Kennung = 'A-1234567890' ORDER BY DSN"});
}

TEST_F(TableOperationsTest, GetFieldReadsOneColumnAsText) {
    host.answer("SELECT Subject FROM AKT WHERE dsn='K1' ", row({{"Subject", "Anruf"}}));
    EXPECT_EQ(base->Sql_GetField("AKT", "K1", "Subject"), "Anruf");
    EXPECT_EQ(base->Sql_GetField("AKT", "K2", "Subject"), "");
    EXPECT_EQ(host.log(), (Lines{"SELECT Subject FROM AKT WHERE dsn='K1' ",
                                 "SELECT Subject FROM AKT WHERE dsn='K2' "}));
}

TEST_F(TableOperationsTest, NullFieldIsAnEmptyText) {
    host.answer("SELECT Notiz FROM AKT WHERE dsn='K1' ", row({{"Notiz", Null{}}}));
    EXPECT_EQ(base->Sql_GetField("AKT", "K1", "Notiz"), "");
}

TEST_F(TableOperationsTest, HumanKeyComesWithOrWithoutItsBlanks) {
    host.answer("SELECT Kennung FROM AD WHERE dsn='K1' ", row({{"Kennung", "AB 12     "}}));
    EXPECT_EQ(base->Sql_GetKennung("AD", "K1"), "AB 12     ");
    EXPECT_EQ(base->Sql_GetKennung("AD", "K1", false), "AB12");
}

TEST_F(TableOperationsTest, SetFieldWritesAnExistingRow) {
    host.answer("SELECT * FROM AKT WHERE dsn='K1' ", row({{"DSN", "K1"}, {"Subject", "alt"}}));
    EXPECT_TRUE(base->Sql_SetField("AKT", "K1", "Subject", "neu"));
    EXPECT_FALSE(base->Sql_SetField("AKT", "K2", "Subject", "neu"));
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM AKT WHERE dsn='K1' ", "Subject = 'neu'", "Update",
                                 "SELECT * FROM AKT WHERE dsn='K2' "}));
}

TEST_F(TableOperationsTest, DeleteTakesTheCurrentRowOnly) {
    RecordSet rs = host.record_set(keys({"K1", "K2"}));
    EXPECT_TRUE(base->SQL_Delete(rs));
    EXPECT_EQ(host.log(), (Lines{"Delete 1", "Update"}));
    RecordSet none = host.record_set(keys({}));
    EXPECT_FALSE(base->SQL_Delete(none));
}

TEST_F(TableOperationsTest, DeleteAllStartsAtTheFirstRow) {
    RecordSet rs = host.record_set(keys({"K1", "K2"}));
    rs.move_next();
    EXPECT_TRUE(base->SQL_DeleteAll(rs));
    EXPECT_EQ(host.log(), (Lines{"Delete 1", "Delete 2", "Update"}));
}

TEST_F(TableOperationsTest, DeleteAllLeavesARecordSetAtItsEndAlone) {
    RecordSet rs = host.record_set(keys({"K1"}));
    rs.move_next();
    EXPECT_FALSE(base->SQL_DeleteAll(rs));
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(TableOperationsTest, DeleteAllOfAForwardOnlyRecordSetTakesTheRest) {
    RecordSet rs = host.record_set(keys({"K1", "K2", "K3"}));
    dynamic_cast<ScriptedRecordSet&>(*rs.object()).forward_only = true;
    rs.move_next();
    EXPECT_TRUE(base->SQL_DeleteAll(rs));
    EXPECT_EQ(host.log(), (Lines{"Delete 2", "Delete 3", "Update"}));
}

TEST_F(TableOperationsTest, DeleteWhereCountsTheRows) {
    host.answer("SELECT * FROM Tapi  WHERE Nummer = '1'", keys({"K1", "K2"}));
    host.answer("SELECT * FROM Tapi ", keys({"K1", "K2", "K3"}));
    EXPECT_EQ(base->SQL_DeleteWhere("Tapi", "Nummer = '1'"), 2);
    EXPECT_EQ(base->SQL_DeleteWhere("Tapi", ""), 3);
    EXPECT_EQ(base->SQL_DeleteWhere("Tapi", "1=2"), 0);
}

TEST_F(TableOperationsTest, CopyFieldsLeavesTheNamedOnesAlone) {
    const RecordSet source = host.record_set(
        row({{"Dsn", "K1"}, {"Name", "Meier"}, {"KENNUNG", "A"}, {"Stamp", std::int32_t{4}}}));
    const RecordSet copy = host.record_set(row({{"Dsn", "K2"}}));
    base->Sql_CopyFields(source, copy);
    EXPECT_EQ(host.log(), Lines{"Name = 'Meier'"});
}

TEST_F(TableOperationsTest, LowerCaseListOfFieldsLeavesNothingAlone) {
    const RecordSet source = host.record_set(row({{"Dsn", "K1"}, {"Name", "Meier"}}));
    const RecordSet copy = host.record_set(row({{"Dsn", "K2"}}));
    base->Sql_CopyFields(source, copy, "|dsn|name|");
    EXPECT_EQ(host.log(), (Lines{"Dsn = 'K1'", "Name = 'Meier'"}));
}

TEST_F(TableOperationsTest, WithoutASessionKeysAndStatementsAreRefused) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { base->Sql_FindByDSN("AKT", "K1"); });
    expect_error_number(601, [&] { base->Sql_Find("AKT", ""); });
    expect_error_number(601, [&] { base->Sql_GetField("AKT", "K1", "Subject"); });
}

}  // namespace
}  // namespace cvdeveloper
