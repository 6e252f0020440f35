#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/host_test.h"
#include "host/keys.h"

namespace cvdeveloper::standalone::testing {
namespace {

constexpr std::string_view object_type = "FA000000-0000-4000-8000-000000000001";  // option
constexpr std::string_view rooms = "FA000000-0000-4000-8000-000000000002";        // number
constexpr std::string_view area = "FA000000-0000-4000-8000-000000000003";         // number
constexpr std::string_view price = "FA000000-0000-4000-8000-000000000006";        // currency
constexpr std::string_view commission = "FA000000-0000-4000-8000-000000000009";   // text
constexpr std::string_view balcony = "FA000000-0000-4000-8000-000000000013";      // yes or no
constexpr std::string_view free_from = "FA000000-0000-4000-8000-000000000016";    // date
constexpr std::string_view postcode = "FA000000-0000-4000-8000-000000000020";     // postcode
constexpr std::string_view bank = "FA000000-0000-4000-8000-000000000039";         // address

class ParseAndFill : public SampleTest {
  protected:
    void enter(std::string_view kind, Variant text) {
        details.add_new();
        details.set("DSN", new_key());
        details.set("FldArt_DSN", kind);
        details.set("Eingabe", std::move(text));
    }
    std::string parse(std::int16_t type = 0, bool show = false) {
        return connector->ParseAndFill(details, type, show);
    }
    Variant value(std::string_view column) { return details.value(column); }

    RecordSet details = select("SELECT * FROM ANFDET WHERE 1=2");
};

TEST_F(ParseAndFill, ReadsEachTextAsItsFieldKindMeansIt) {
    enter(object_type, "einfamilienhaus");
    enter(rooms, "4 - 6");
    enter(price, "bis 500.000,00 €");
    enter(commission, "3,57 % inkl. MwSt.");
    enter(balcony, "Ja");
    enter(free_from, "ab 01.09.2026");
    enter(postcode, "45000-45030");
    enter(bank, "Konrad Zinsmeier");
    EXPECT_EQ(parse(), "");
    ASSERT_FALSE(details.at_end());
    EXPECT_EQ(value("FldArtOp_Dsn"), Variant("FA000B00-0000-4000-8000-000000000001"));
    details.move_next();
    EXPECT_EQ(value("Von_Num"), Variant(4.0));
    EXPECT_EQ(value("Bis_Num"), Variant(6.0));
    details.move_next();
    EXPECT_EQ(value("Von_Num"), Variant(0.0));
    EXPECT_EQ(value("Bis_Num"), Variant(500000.0));
    details.move_next();
    EXPECT_EQ(value("von_str"), Variant("3,57 % inkl. MwSt."));
    EXPECT_EQ(value("bis_str"), Variant("3,57 % inkl. MwSt."));
    EXPECT_EQ(value("Von_Num"), Variant(0.0));
    details.move_next();
    EXPECT_EQ(value("Von_Num"), Variant(1.0));
    EXPECT_EQ(value("Bis_Num"), Variant(1.0));
    details.move_next();
    EXPECT_EQ(value("Von_Num"), Variant(46266.0));
    EXPECT_EQ(value("Bis_Num"), Variant(2958465.0));
    details.move_next();
    EXPECT_EQ(value("von_str"), Variant("45000"));
    EXPECT_EQ(value("bis_str"), Variant("45030"));
    details.move_next();
    EXPECT_EQ(value("Link_DSN"), Variant("AD000000-0000-4000-8000-000000000004"));
}

TEST_F(ParseAndFill, GivesBackALineForEachTextThatItCannotReadAndLeavesTheRow) {
    enter(area, "ca. 100");
    details.set("Von_Num", 7.0);
    enter(rooms, "3");
    enter(object_type, "Schloss");
    enter("FA000000-0000-4000-8000-00000000FFFF", "x");
    EXPECT_EQ(parse(), "Wohnfläche: ca. 100\r\nObjektart: Schloss\r\nunbekannte Feldart: x");
    EXPECT_EQ(value("Von_Num"), Variant(7.0));
    details.move_next();
    EXPECT_EQ(value("Von_Num"), Variant(3.0));
}

TEST_F(ParseAndFill, ShowsWhatItCannotReadOnRequestOnly) {
    enter(area, "ca. 100");
    const MessageCapture capture;
    parse(0, false);
    EXPECT_TRUE(capture.messages().empty());
    parse(0, true);
    EXPECT_EQ(capture.messages(),
              std::vector<std::string>{
                  "Diese Eingaben konnten nicht gelesen werden:\r\nWohnfläche: ca. 100"});
    details.set("Eingabe", "100");
    parse(0, true);
    EXPECT_EQ(capture.messages().size(), 1U);
}

TEST_F(ParseAndFill, ReadsOnlyTheTypeAskedFor) {
    enter(rooms, "3");
    enter(balcony, "Ja");
    EXPECT_EQ(parse(4), "");
    EXPECT_EQ(value("Von_Num"), Variant(0.0));
    details.move_next();
    EXPECT_EQ(value("Von_Num"), Variant(1.0));
}

TEST_F(ParseAndFill, TakesAnEmptyTextForNoValueButKeepsAChosenOption) {
    enter(rooms, "");
    details.set("Von_Num", 3.0);
    details.set("Bis_Num", 5.0);
    enter(object_type, Null{});
    details.set("FldArtOp_Dsn", "FA000B00-0000-4000-8000-000000000001");
    EXPECT_EQ(parse(), "");
    EXPECT_EQ(value("Von_Num"), Variant(0.0));
    EXPECT_EQ(value("Bis_Num"), Variant(0.0));
    details.move_next();
    EXPECT_EQ(value("FldArtOp_Dsn"), Variant("FA000B00-0000-4000-8000-000000000001"));
}

TEST_F(ParseAndFill, FindsAnOptionByItsShortFormToo) {
    enter(object_type, "ETW");
    EXPECT_EQ(parse(), "");
    EXPECT_EQ(value("FldArtOp_Dsn"), Variant("FA000B00-0000-4000-8000-000000000004"));
}

TEST_F(ParseAndFill, TakesACompanyBeforeThePeopleInItAndLinksNobodyByChance) {
    enter(bank, "Beispielbank eG");
    EXPECT_EQ(parse(), "");
    EXPECT_EQ(value("Link_DSN"), Variant("AD000000-0000-4000-8000-000000000003"));
    const RecordSet people = select("SELECT * FROM AD WHERE 1=2");
    for (const char* key : {"X1", "X2"}) {
        people.add_new();
        people.set("DSN", key);
        people.set("NAME", "Hans Doppelt");
    }
    save(people);
    details.set("Eingabe", "Hans Doppelt");
    EXPECT_EQ(parse(), "Bank: Hans Doppelt");
    details.set("Link_DSN", "X2");
    EXPECT_EQ(parse(), "");
    EXPECT_EQ(value("Link_DSN"), Variant("X2"));
}

TEST_F(ParseAndFill, DoesNotSaveAndLeavesWhatIsRightUnchanged) {
    details = select("SELECT * FROM ANFDET");
    EXPECT_EQ(parse(), "");
    const auto& rows = dynamic_cast<ClientRecordSet&>(*details.object());
    EXPECT_EQ(rows.changes().size(), 0U);
}

// The sample's own rows say what stands in which column.
TEST_F(ParseAndFill, FillsAllDetailValuesOfTheSampleAsTheyAre) {
    for (const char* table :
         {"OBJDET", "AKTDET", "ADDET", "AKTENDET", "PROJEKTEDET", "VERTRÄGEDET", "DETAILSDET"}) {
        details = select("SELECT * FROM " + std::string(table));
        EXPECT_EQ(parse(), "") << table;
        EXPECT_EQ(dynamic_cast<ClientRecordSet&>(*details.object()).changes().size(), 0U) << table;
    }
}

TEST_F(ParseAndFill, RefusesNoRecordSetAndOneWithoutTheColumns) {
    RecordSet nothing;
    bool show = false;
    EXPECT_EQ(error_of([&] { connector->ParseAndFill(nothing, 0, show); }).number(), 91);
    RecordSet other = select("SELECT DSN FROM AKT");
    EXPECT_EQ(error_of([&] { connector->ParseAndFill(other, 0, show); }).number(), 3265);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
