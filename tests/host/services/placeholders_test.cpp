#include "host/services/placeholders.h"

#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

class PlaceholderValues : public SampleTest {
  protected:
    std::string fill(const RecordSet& rs, std::string_view name, std::string_view sql = "") {
        return placeholder_value(connector->session(), rs, name, sql);
    }
    const std::string one = "SELECT * FROM AD WHERE DSN='AD000000-0000-4000-8000-000000000001'";
    const std::string office = "SELECT Firma, Ort AS Sitz FROM Std";
};

TEST_F(PlaceholderValues, AreFieldsOfTheRecordInAnyCase) {
    const RecordSet rs = select(one);
    EXPECT_EQ(fill(rs, "NAME"), "Carla Muster");
    EXPECT_EQ(fill(rs, "name"), "Carla Muster");
    EXPECT_EQ(fill(rs, "STRASSE"), "");
    EXPECT_EQ(fill(rs, "STRAßE"), "Musterstraße 1");
}

TEST_F(PlaceholderValues, AreFieldsOfTheStatementWhereTheRecordHasNone) {
    const RecordSet rs = select(one);
    EXPECT_EQ(fill(rs, "sitz", office), "Musterstadt");
    EXPECT_EQ(fill(rs, "Firma", office), "");  // the record's own, although it is empty
    EXPECT_EQ(fill(RecordSet(), "Firma", office), "Musterhaus Immobilien GmbH");
    EXPECT_EQ(fill(select("SELECT * FROM AD WHERE 1=2"), "Firma", office),
              "Musterhaus Immobilien GmbH");
}

TEST_F(PlaceholderValues, AreEmptyWhereNobodyKnowsThem) {
    EXPECT_EQ(fill(select(one), "Unsinn", office), "");
    EXPECT_EQ(fill(RecordSet(), "Unsinn"), "");
    EXPECT_EQ(fill(RecordSet(), "Firma", "SELECT Firma FROM AD WHERE 1=2"), "");
    EXPECT_EQ(fill(RecordSet(), ""), "");
}

TEST_F(PlaceholderValues, AreTextsInTheRegionalForm) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    rs.add_new();
    rs.set("Datum", Date{46266.5});
    rs.set("Km", 1234.5);
    rs.set("Kennung", "K-1       ");
    EXPECT_EQ(fill(rs, "Datum"), "01.09.2026 12:00:00");
    EXPECT_EQ(fill(rs, "Km"), "1234,5");
    EXPECT_EQ(fill(rs, "Erledigt"), "0");
    EXPECT_EQ(fill(rs, "Kennung"), "K-1");
    EXPECT_EQ(fill(rs, "Notiz"), "");
}

TEST_F(PlaceholderValues, PassOnTheDatabaseErrorOfABadStatement) {
    EXPECT_EQ(error_of([&] { fill(RecordSet(), "Ort", "SELECT Nix FROM AD"); }).number(),
              -2147217900);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
