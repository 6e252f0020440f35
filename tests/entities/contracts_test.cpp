#include "cvdeveloper/entities/contracts.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class ContractsTest : public RecordTest {
  protected:
    ContractsTest() { answer_std("Kennung_VERTRÄGE", "V-1"); }

    const Lines new_row{"SELECT * FROM VERTRÄGE  WHERE 1=2",
                        "AddNew",
                        "DSN = 'GUID-1'",
                        "SELECT Kennung_VERTRÄGE FROM Std",
                        "Kennung = 'V-1'",
                        "Aktiv = 1",
                        "FArchiv = 0"};
    Contracts contracts{session};
};

TEST_F(ContractsTest, NewContractIsActiveAndHasNoPriority) {
    const RecordSet rs = contracts.VERTRAEGE_New();
    EXPECT_EQ(host.log(), new_row);
    EXPECT_EQ(rs.value("Aktiv"), Variant(std::int16_t{1}));
}

TEST_F(ContractsTest, CreateWithoutArgumentsWritesEmptyTextsAndNulls) {
    EXPECT_EQ(contracts.VERTRAEGE_Create(), "GUID-1");
    EXPECT_EQ(host.log(), together({new_row,
                                    {"Vertragsnummer = ''", "Intern = ''", "Notiz = ''",
                                     "EMSK_Dsn = Null", "AD_Nehmer_Dsn = Null",
                                     "AD_Gesellschaft_Dsn = Null", "AD_Vermittler_Dsn = Null"},
                                    saving("VERTRÄGEMKM")}));
}

TEST_F(ContractsTest, CreateWritesEachArgumentIntoItsColumn) {
    contracts.VERTRAEGE_Create(std::string(60, 'n'), std::string(41, 'i'), "Notiz", "EMSK", "AD1",
                               "AD2", "AD3");
    EXPECT_EQ(host.log(), together({new_row,
                                    {"Vertragsnummer = '" + std::string(50, 'n') + "'",
                                     "Intern = '" + std::string(40, 'i') + "'", "Notiz = 'Notiz'",
                                     "EMSK_Dsn = 'EMSK'", "AD_Nehmer_Dsn = 'AD1'",
                                     "AD_Gesellschaft_Dsn = 'AD2'", "AD_Vermittler_Dsn = 'AD3'"},
                                    saving("VERTRÄGEMKM")}));
}

TEST_F(ContractsTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { contracts.VERTRAEGE_Create(); });
}

}  // namespace
}  // namespace cvdeveloper
