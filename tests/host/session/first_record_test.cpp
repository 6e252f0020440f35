#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

using FirstRecord = HostTest;

TEST_F(FirstRecord, IsWrittenFoundChangedAndReadBack) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    EXPECT_TRUE(rs.at_end());
    rs.add_new();
    rs.set("DSN", "11111111-2222-4333-8444-555555555555");
    rs.set("Subject", "Anruf bei Müller");
    rs.set("PRIORITÄT", std::int16_t{1});
    rs.set("Datum", Date{45352.5});
    rs.set("Km", 12.5);
    save(rs);

    const RecordSet found = select("SELECT * FROM akt  WHERE Subject = 'anruf bei müller  '");
    ASSERT_FALSE(found.at_end());
    EXPECT_EQ(found.value("priorität"), Variant(std::int16_t{1}));
    EXPECT_EQ(found.value("Datum"), Variant(Date{45352.5}));
    EXPECT_EQ(found.value("KM"), Variant(12.5));
    EXPECT_EQ(found.value("Notiz"), Variant(Null{}));
    found.set("Notiz", "zurückrufen");
    save(found);
    EXPECT_EQ(single("SELECT Notiz FROM AKT"), Variant("zurückrufen"));
}

TEST_F(FirstRecord, TakesTheDatabaseDefaultsForWhatIsNotSet) {
    const std::string key = add_activity("x");
    EXPECT_EQ(single("SELECT Erledigt FROM AKT WHERE DSN='" + key + "'"), Variant(std::int16_t{0}));
}

TEST_F(FirstRecord, CanBeSavedTwiceInARowByItsAuthor) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    rs.add_new();
    rs.set("DSN", "A");
    save(rs);
    rs.set("Subject", "eins");
    save(rs);
    rs.set("Subject", "zwei");
    save(rs);
    EXPECT_EQ(single("SELECT Subject FROM AKT"), Variant("zwei"));
}

TEST_F(FirstRecord, IsNotOverwrittenByTheSecondOfTwoWriters) {
    const std::string key = add_activity("eins");
    const std::string statement = "SELECT * FROM AKT WHERE DSN='" + key + "'";
    const Ref<Connector> other = log_on();
    RecordSet theirs = other->GetRecordset(statement, {});
    const RecordSet ours = select(statement);
    theirs.set("Subject", "ihres");
    other->UpdateRecordset(theirs, {});
    ours.set("Subject", "unseres");
    const AutomationError error = error_of([&] { save(ours); });
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::RowChanged));
    for (const std::string& part : {std::string("AKT"), key, std::string("Subject"),
                                    std::string("'ihres'"), std::string("'unseres'")}) {
        EXPECT_NE(error.description().find(part), std::string::npos) << error.description();
    }
    EXPECT_EQ(single(statement.substr(0, 7) + "Subject" + statement.substr(8)), Variant("ihres"));
}

TEST_F(FirstRecord, MayBeDeletedThroughItsKeyAlone) {
    add_activity("weg");
    const RecordSet rs = select("SELECT Dsn FROM AKT WHERE Subject='weg'");
    rs.remove();
    EXPECT_FALSE(rs.at_end());
    rs.move_next();
    EXPECT_TRUE(rs.at_end());
    save(rs);
    EXPECT_TRUE(select("SELECT Dsn FROM AKT").at_end());
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
