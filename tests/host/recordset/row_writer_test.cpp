#include "host/recordset/row_writer.h"

#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

std::int32_t number(HostError error) {
    return static_cast<std::int32_t>(error);
}

using Writing = HostTest;

TEST_F(Writing, WritesTheDetailTableOfAJoin) {
    const std::string akt = add_activity("x");
    const RecordSet rs =
        select("SELECT AKTDET.* FROM AKT INNER JOIN AKTDET ON AKT.dsn = AKTDET.AKT_dsn WHERE 1=2");
    rs.add_new();
    rs.set("DSN", "D1");
    rs.set("Akt_Dsn", akt);
    rs.set("FldArt_DSN", "F1");
    rs.set("Eingabe", "eins");
    save(rs);
    const std::string row_query =
        "SELECT AKTDET.* FROM AKT INNER JOIN AKTDET ON AKT.dsn = AKTDET.AKT_dsn WHERE (AKT.DSN='" +
        akt + "') AND (AKTDET.FLDART_DSN='F1') ORDER BY AKTDET.DSN";
    const RecordSet found = select(row_query);
    found.set("Eingabe", "zwei");
    save(found);
    EXPECT_EQ(single("SELECT Eingabe FROM AKTDET"), Variant("zwei"));
    EXPECT_EQ(single("SELECT Von_Num FROM AKTDET"), Variant(0.0));
    const RecordSet again = select(row_query);
    again.remove();
    save(again);
    EXPECT_TRUE(select(row_query).at_end());
    EXPECT_FALSE(select("SELECT * FROM AKT").at_end());
}

TEST_F(Writing, WritesAllRowsOrNone) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    for (const char* key : {"A", "B", "A"}) {
        rs.add_new();
        rs.set("DSN", key);
    }
    const AutomationError error = error_of([&] { save(rs); });
    EXPECT_EQ(error.number(), number(HostError::ValueRefused));
    EXPECT_TRUE(select("SELECT DSN FROM AKT").at_end());
    rs.set("DSN", "C");
    save(rs);
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(3));
}

TEST_F(Writing, NeedsAKeyForANewRow) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    rs.add_new();
    rs.set("Subject", "x");
    EXPECT_EQ(error_of([&] { save(rs); }).description(),
              "AKT.DSN ist ein Pflichtfeld und nimmt kein Null auf.");
}

TEST_F(Writing, RefusesRecordSetsThatNoTableTakesBack) {
    add_activity("x");
    const auto refusal = [this](std::string_view sql, std::string_view field) {
        const RecordSet rs = select(sql);
        return error_of([&] {
            rs.set(field, "y");
            save(rs);
        });
    };
    for (const auto& [sql, field] : {std::pair("SELECT Subject FROM AKT", "Subject"),
                                     std::pair("SELECT Version FROM Version", "Version"),
                                     std::pair("SELECT count(*) AS n FROM AKT", "n")}) {
        const AutomationError error = refusal(sql, field);
        EXPECT_NE(error.number(), 0) << sql;
    }
    EXPECT_EQ(refusal("SELECT Subject FROM AKT", "Subject").number(),
              number(HostError::NotUpdatable));
}

TEST_F(Writing, TellsTheSecondOfTwoThatTheRowIsGone) {
    const std::string key = add_activity("x");
    const RecordSet ours = select("SELECT * FROM AKT");
    const RecordSet theirs = select("SELECT * FROM AKT");
    theirs.remove();
    save(theirs);
    ours.set("Subject", "y");
    const AutomationError error = error_of([&] { save(ours); });
    EXPECT_EQ(error.number(), number(HostError::RowChanged));
    EXPECT_NE(error.description().find("gelöscht"), std::string::npos);
    EXPECT_NE(error.description().find(key), std::string::npos);
}

TEST_F(Writing, NamesAllColumnsThatSomebodyElseHasChanged) {
    add_activity("x");
    const RecordSet ours = select("SELECT * FROM AKT");
    const RecordSet theirs = select("SELECT * FROM AKT");
    theirs.set("Subject", "y");
    theirs.set("Km", 3.0);
    save(theirs);
    ours.remove();
    const std::string text = error_of([&] { save(ours); }).description();
    EXPECT_NE(text.find("(Subject, Km)"), std::string::npos) << text;
}

TEST_F(Writing, NoticesAWriteThatDidNotReadTheVersion) {
    add_activity("x");
    const RecordSet ours = select("SELECT * FROM AKT");
    const RecordSet theirs = select("SELECT Dsn, Subject FROM AKT");
    theirs.set("Subject", "y");
    save(theirs);
    ours.set("Km", 1.0);
    EXPECT_EQ(error_of([&] { save(ours); }).number(), number(HostError::RowChanged));
}

TEST_F(Writing, TakesNothingFromAnotherSession) {
    add_activity("x");
    const Ref<Connector> other = log_on();
    RecordSet theirs = other->GetRecordset("SELECT * FROM AKT", {});
    theirs.set("Subject", "y");
    EXPECT_EQ(error_of([&] { save(theirs); }).number(), number(HostError::NotUpdatable));
}

TEST_F(Writing, DoesNothingWithoutChanges) {
    const RecordSet rs = select("SELECT count(*) FROM AKT");
    save(rs);
}

TEST_F(Writing, SavesARowThatWasAddedAndDeletedAgainAsNothing) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    rs.add_new();
    rs.set("DSN", "A");
    rs.remove();
    save(rs);
    EXPECT_TRUE(select("SELECT DSN FROM AKT").at_end());
}

TEST_F(Writing, ChangesAKeyUnderItsOldOne) {
    add_activity("x");
    const RecordSet rs = select("SELECT * FROM AKT");
    rs.set("DSN", "NEU");
    save(rs);
    rs.set("Subject", "y");
    save(rs);
    EXPECT_EQ(single("SELECT Subject FROM AKT WHERE DSN='neu'"), Variant("y"));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
