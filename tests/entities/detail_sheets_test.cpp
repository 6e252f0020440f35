#include "cvdeveloper/entities/detail_sheets.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class DetailSheetsTest : public RecordTest {
  protected:
    const Lines new_row{"SELECT * FROM Details  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                        "FARCHIV = 0"};
    DetailSheets sheets{session};
};

TEST_F(DetailSheetsTest, NewSheetHasNoHumanKey) {
    EXPECT_EQ(sheets.Details_New().value("FARCHIV"), Variant(std::int16_t{0}));
    EXPECT_EQ(host.log(), new_row);
}

TEST_F(DetailSheetsTest, EmptyKeysAreStoredAsNull) {
    EXPECT_EQ(sheets.Details_Create("", ""), "GUID-1");
    EXPECT_EQ(host.log(),
              together({new_row,
                        {"Ad_Dsn = Null", "EMSK_DSN = Null", "Oberbegriff = ''", "Notiz = ''"},
                        saving("DETAILSMKM")}));
}

TEST_F(DetailSheetsTest, CreateCutsTheHeadingButNotTheNote) {
    const std::string text(60, 'x');
    sheets.Details_Create("AD1", "E1", text, text);
    EXPECT_EQ(first_written("Ad_Dsn"), "'AD1'");
    EXPECT_EQ(first_written("EMSK_DSN"), "'E1'");
    EXPECT_EQ(first_written("Oberbegriff"), "'" + std::string(50, 'x') + "'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
}

TEST_F(DetailSheetsTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { sheets.Details_Create("AD1", "E1"); });
}

}  // namespace
}  // namespace cvdeveloper
