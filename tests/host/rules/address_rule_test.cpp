#include <algorithm>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/host_test.h"
#include "host/keys.h"

namespace cvdeveloper::standalone::testing {
namespace {

class AddressRules : public HostTest {
  protected:
    std::string add(std::string_view column, Variant value) {
        const RecordSet rs = new_address();
        rs.set(column, std::move(value));
        save(rs);
        return to_text(rs.value("DSN"));
    }
    RecordSet new_address() {
        const RecordSet rs = select("SELECT * FROM AD WHERE 1=2");
        rs.add_new();
        rs.set("DSN", new_key());
        return rs;
    }
    RecordSet address(const std::string& key, std::string_view columns = "*") {
        return select("SELECT " + std::string(columns) + " FROM AD WHERE DSN='" + key + "'");
    }
    std::vector<std::string> numbers(const std::string& key) {
        std::vector<std::string> found;
        for (const RecordSet rs = select("SELECT Nummer FROM Tapi WHERE Ad_Dsn='" + key + "'");
             !rs.at_end(); rs.move_next()) {
            found.push_back(to_text(rs.value("Nummer")));
        }
        std::ranges::sort(found);
        return found;
    }
    using Numbers = std::vector<std::string>;
};

TEST_F(AddressRules, TakeTheMarkerOutOfANewNameAndShowWhatIsStored) {
    const RecordSet rs = new_address();
    rs.set("NAME", "Dr. Hans #Meier");
    save(rs);
    EXPECT_EQ(rs.value("NAME"), Variant("Dr. Hans Meier"));
    EXPECT_EQ(rs.value("IDX_NAME"), Variant("Meier"));
    const RecordSet stored = address(to_text(rs.value("DSN")));
    EXPECT_EQ(stored.value("NAME"), Variant("Dr. Hans Meier"));
    EXPECT_EQ(stored.value("IDX_NAME"), Variant("Meier"));
}

TEST_F(AddressRules, KeepTheFamilyNameAlsoWhereTheRecordSetHasNoColumnForIt) {
    const std::string key = add("NAME", "Hans Meier");
    const RecordSet rs = address(key, "DSN, STAMP, NAME");
    rs.set("NAME", "Eva #von Berg");
    save(rs);
    EXPECT_EQ(rs.value("NAME"), Variant("Eva von Berg"));
    EXPECT_EQ(address(key).value("IDX_NAME"), Variant("von Berg"));
}

TEST_F(AddressRules, LeaveTheFamilyNameAloneUnlessTheNameChanges) {
    const std::string key = add("NAME", "Eva #von Berg");
    const RecordSet rs = address(key);
    rs.set("NAME", "Eva von Berg");
    rs.set("Ort", "Essen");
    save(rs);
    EXPECT_EQ(address(key).value("IDX_NAME"), Variant("von Berg"));
    rs.set("NAME", "Eva Maria von Berg");
    save(rs);
    EXPECT_EQ(rs.value("IDX_NAME"), Variant("Berg"));
    rs.set("NAME", Null{});
    save(rs);
    EXPECT_EQ(address(key).value("IDX_NAME"), Variant(Null{}));
}

TEST_F(AddressRules, TakeTheFamilyNameThatACopyBringsAlong) {
    const RecordSet rs = new_address();
    rs.set("NAME", "Eva von Berg");
    rs.set("IDX_NAME", "von Berg");
    save(rs);
    EXPECT_EQ(address(to_text(rs.value("DSN"))).value("IDX_NAME"), Variant("von Berg"));
    const RecordSet other = new_address();
    other.set("NAME", "Eva von Berg");
    other.set("IDX_NAME", "Tal");
    save(other);
    EXPECT_EQ(other.value("IDX_NAME"), Variant("Berg"));
}

TEST_F(AddressRules, LeaveARowWithoutANameWithoutAFamilyName) {
    const std::string key = add("Firma", "Musterbau GmbH");
    EXPECT_EQ(address(key).value("IDX_NAME"), Variant(Null{}));
}

// The marker was lost from the record set although nothing had been saved.
TEST_F(AddressRules, KeepTheMarkerOfANameThatCouldNotBeSaved) {
    const std::string key = add("NAME", "Hans Meier");
    const RecordSet ours = address(key);
    const RecordSet theirs = address(key);
    theirs.set("Ort", "Essen");
    save(theirs);
    ours.set("NAME", "Eva #von Berg");
    EXPECT_EQ(error_of([&] { save(ours); }).number(),
              static_cast<std::int32_t>(HostError::RowChanged));
    EXPECT_EQ(ours.value("NAME"), Variant("Eva #von Berg"));
    EXPECT_EQ(address(key).value("IDX_NAME"), Variant("Meier"));
}

TEST_F(AddressRules, ListEveryNumberAndEMailAddressOfANewAddress) {
    const RecordSet rs = new_address();
    rs.set("TELEFON", "0201 1\t0171 2\tBüro\r\n0201 1\t\tprivat");
    rs.set("EMail", "a@example.org");
    rs.set("EMail2", " b@example.org ");
    save(rs);
    EXPECT_EQ(numbers(to_text(rs.value("DSN"))),
              (Numbers{"0171 2", "0201 1", "a@example.org", "b@example.org"}));
}

TEST_F(AddressRules, ReplaceTheNumbersWhenTheyChange) {
    const std::string key = add("TELEFON", "0201 1\t\t");
    const RecordSet rs = address(key, "DSN, EMail");
    rs.set("EMail", "a@example.org");
    save(rs);
    EXPECT_EQ(numbers(key), (Numbers{"0201 1", "a@example.org"}));
    const RecordSet whole = address(key);
    whole.set("TELEFON", "0201 9\t\t");
    whole.set("EMail", Null{});
    save(whole);
    EXPECT_EQ(numbers(key), Numbers{"0201 9"});
    whole.set("TELEFON", "");
    save(whole);
    EXPECT_EQ(numbers(key), Numbers{});
}

TEST_F(AddressRules, LeaveTheNumbersAloneWhenSomethingElseChanges) {
    const std::string key = add("TELEFON", "0201 1\t\t");
    const Variant before = single("SELECT DSN FROM Tapi");
    const RecordSet rs = address(key);
    rs.set("Ort", "Essen");
    rs.set("TELEFON", "0201 1\t\t");
    save(rs);
    EXPECT_EQ(single("SELECT DSN FROM Tapi"), before);
}

TEST_F(AddressRules, RemoveTheNumbersOfADeletedAddress) {
    const std::string kept = add("TELEFON", "0201 1\t\t");
    const std::string gone = add("TELEFON", "0201 1\t0171 2\t");
    const RecordSet rs = address(gone, "DSN");
    rs.remove();
    save(rs);
    EXPECT_EQ(numbers(gone), Numbers{});
    EXPECT_EQ(numbers(kept), Numbers{"0201 1"});
}

TEST_F(AddressRules, FollowAnAddressToItsNewKey) {
    const std::string key = add("TELEFON", "0201 1\t\t");
    const std::string other = new_key();
    const RecordSet rs = address(key);
    rs.set("DSN", other);
    save(rs);
    EXPECT_EQ(numbers(key), Numbers{});
    EXPECT_EQ(numbers(other), Numbers{"0201 1"});
}

TEST_F(AddressRules, AreUndoneTogetherWithTheRow) {
    const std::string key = add("TELEFON", "0201 1\t\t");
    connector->BeginTrans();
    const RecordSet rs = address(key);
    rs.set("TELEFON", "0201 2\t\t");
    save(rs);
    EXPECT_EQ(numbers(key), Numbers{"0201 2"});
    connector->RollbackTrans();
    EXPECT_EQ(numbers(key), Numbers{"0201 1"});
}

TEST_F(AddressRules, SaveAllRowsOfARecordSetOrNone) {
    const std::string key = add("NAME", "Hans Meier");
    const RecordSet rs = select("SELECT * FROM AD");
    rs.set("TELEFON", "0201 1\t\t");
    rs.add_new();
    rs.set("DSN", key);  // there already
    rs.set("NAME", "Eva #Berg");
    error_of([&] { save(rs); });
    EXPECT_EQ(numbers(key), Numbers{});
    EXPECT_EQ(rs.value("NAME"), Variant("Eva #Berg"));
}

class SampleAddresses : public SampleTest {};

TEST_F(SampleAddresses, KeepTheirNumbersWhenTheirPhoneListIsWrittenAgain) {
    const std::string where = " WHERE Ad_Dsn='AD000000-0000-4000-8000-000000000001'";
    const auto listed = [&] {
        std::string text;
        for (const RecordSet rs = select("SELECT Nummer FROM Tapi" + where + " ORDER BY Nummer");
             !rs.at_end(); rs.move_next()) {
            text += to_text(rs.value("Nummer")) + "\n";
        }
        return text;
    };
    const std::string before = listed();
    const RecordSet rs =
        select("SELECT * FROM AD WHERE DSN='AD000000-0000-4000-8000-000000000001'");
    const Variant list = rs.value("TELEFON");
    rs.set("TELEFON", "");
    save(rs);
    EXPECT_EQ(listed(), "carla.muster@musterhaus.example.org\n");
    rs.set("TELEFON", list);
    save(rs);
    EXPECT_EQ(listed(), before);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
