#include "cvdeveloper/entities/property_objects.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class PropertyObjectsTest : public RecordTest {
  protected:
    PropertyObjectsTest() { answer_std("Kennung_OBJ", "O-1"); }

    const Lines new_row{"SELECT * FROM OBJ  WHERE 1=2",
                        "AddNew",
                        "DSN = 'GUID-1'",
                        "SELECT Kennung_OBJ FROM Std",
                        "Kennung = 'O-1'",
                        "Aktiv = 1",
                        "Priorität = 1",
                        "FARCHIV = 0"};
    PropertyObjects objects{session};
};

TEST_F(PropertyObjectsTest, NewObjectIsActiveWithPriorityOne) {
    const RecordSet rs = objects.OBJ_New();
    EXPECT_EQ(host.log(), new_row);
    EXPECT_EQ(rs.value("Aktiv"), Variant(std::int16_t{1}));
    EXPECT_EQ(rs.value("Priorität"), Variant(std::int16_t{1}));
    EXPECT_EQ(rs.value("FARCHIV"), Variant(std::int16_t{0}));
}

TEST_F(PropertyObjectsTest, CreateWithoutArgumentsLeavesTheEndOfTheMandateAlone) {
    EXPECT_EQ(objects.OBJ_Create(), "GUID-1");
    EXPECT_EQ(host.log(), together({new_row,
                                    {"Intern = ''", "EART = 0", "EMSK_DSN = Null",
                                     "AD_ANBIETER_DSN = Null", "Notiz = ''", "Abteilung = 0"},
                                    saving("OBJMKM")}));
}

TEST_F(PropertyObjectsTest, CreateWritesEachArgumentIntoItsColumn) {
    objects.OBJ_Create(std::string(300, 'x'), EART_KAUFMIETE, "EMSK", "AD1", "31.12.2026", "Notiz",
                       7);
    EXPECT_EQ(host.log(),
              together({new_row,
                        {"Intern = '" + std::string(254, 'x') + "'", "EART = 2",
                         "EMSK_DSN = 'EMSK'", "AD_ANBIETER_DSN = 'AD1'",
                         "Auftragsende = #31.12.2026#", "Notiz = 'Notiz'", "Abteilung = 7"},
                        saving("OBJMKM")}));
}

TEST_F(PropertyObjectsTest, EndOfTheMandateThatIsNoDateIsATypeMismatchAndNothingIsSaved) {
    expect_error_number(13, [&] { objects.OBJ_Create("", EART_KAUF, "", "", "kein Datum"); });
    EXPECT_FALSE(anything_saved());
}

TEST_F(PropertyObjectsTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { objects.OBJ_Create(); });
    expect_error_number(601, [&] { objects.OBJ_New(); });
}

}  // namespace
}  // namespace cvdeveloper
