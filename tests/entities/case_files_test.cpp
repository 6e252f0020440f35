#include "cvdeveloper/entities/case_files.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class CaseFilesTest : public RecordTest {
  protected:
    CaseFilesTest() { answer_std("Kennung_AKTEN", "C-1"); }

    const Lines new_row{"SELECT * FROM AKTEN  WHERE 1=2", "AddNew",          "DSN = 'GUID-1'",
                        "SELECT Kennung_AKTEN FROM Std",  "Kennung = 'C-1'", "FArchiv = 0"};
    CaseFiles case_files{session};
};

TEST_F(CaseFilesTest, NewCaseFileHasKeysAndArchiveFlag) {
    EXPECT_EQ(case_files.AKTEN_New().value("FArchiv"), Variant(std::int16_t{0}));
    EXPECT_EQ(host.log(), new_row);
}

TEST_F(CaseFilesTest, CreateWithoutArgumentsWritesEmptyTextsAndANull) {
    EXPECT_EQ(case_files.AKTEN_Create(), "GUID-1");
    EXPECT_EQ(
        host.log(),
        together({new_row, {"EMSK_Dsn = Null", "Notiz = ''", "Rubrum = ''"}, saving("AKTENMKM")}));
}

TEST_F(CaseFilesTest, CreateCutsTheTitleButNotTheNote) {
    const std::string text(60, 'x');
    case_files.AKTEN_Create("EMSK", text, text);
    EXPECT_EQ(first_written("EMSK_Dsn"), "'EMSK'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
    EXPECT_EQ(first_written("Rubrum"), "'" + std::string(50, 'x') + "'");
}

TEST_F(CaseFilesTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { case_files.AKTEN_Create(); });
}

}  // namespace
}  // namespace cvdeveloper
