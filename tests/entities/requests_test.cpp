#include "cvdeveloper/entities/requests.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class RequestsTest : public RecordTest {
  protected:
    RequestsTest() { answer_std("Kennung_ANF", "R-1"); }

    const Lines new_row{"SELECT * FROM ANF  WHERE 1=2",
                        "AddNew",
                        "DSN = 'GUID-1'",
                        "SELECT Kennung_ANF FROM Std",
                        "Kennung = 'R-1'",
                        "Aktiv = 1",
                        "Priorität = 1",
                        "FArchiv = 0"};
    Requests requests{session};
};

TEST_F(RequestsTest, NewRequestIsActiveWithPriorityOne) {
    const RecordSet rs = requests.ANF_New();
    EXPECT_EQ(host.log(), new_row);
    EXPECT_EQ(rs.value("Aktiv"), Variant(std::int16_t{1}));
    EXPECT_EQ(rs.value("FArchiv"), Variant(std::int16_t{0}));
}

TEST_F(RequestsTest, CreateWithoutArgumentsWritesEmptyTextsAndNulls) {
    EXPECT_EQ(requests.ANF_Create(), "GUID-1");
    EXPECT_EQ(host.log(), together({new_row,
                                    {"AD_Dsn = Null", "EMSK_Dsn = Null", "Notiz = ''", "EART = 0",
                                     "Abteilung = 0", "Manuell = ''"},
                                    saving("ANFMKM")}));
}

TEST_F(RequestsTest, CreateWritesEachArgumentIntoItsColumn) {
    requests.ANF_Create("AD1", "EMSK", "Notiz", EART_MIETE, 3, std::string(300, 'x'));
    EXPECT_EQ(host.log(),
              together({new_row,
                        {"AD_Dsn = 'AD1'", "EMSK_Dsn = 'EMSK'", "Notiz = 'Notiz'", "EART = 1",
                         "Abteilung = 3", "Manuell = '" + std::string(255, 'x') + "'"},
                        saving("ANFMKM")}));
}

TEST_F(RequestsTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { requests.ANF_Create(); });
}

}  // namespace
}  // namespace cvdeveloper
