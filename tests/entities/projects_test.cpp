#include "cvdeveloper/entities/projects.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class ProjectsTest : public RecordTest {
  protected:
    ProjectsTest() { answer_std("Kennung_Projekte", "P-1"); }

    const Lines new_row{"SELECT * FROM Projekte  WHERE 1=2", "AddNew",          "DSN = 'GUID-1'",
                        "SELECT Kennung_Projekte FROM Std",  "Kennung = 'P-1'", "FArchiv = 0"};
    Projects projects{session};
};

TEST_F(ProjectsTest, NewProjectHasKeysAndArchiveFlag) {
    EXPECT_EQ(projects.PROJEKTE_New().value("FArchiv"), Variant(std::int16_t{0}));
    EXPECT_EQ(host.log(), new_row);
}

TEST_F(ProjectsTest, CreateWithoutArgumentsWritesEmptyTextsAndNulls) {
    EXPECT_EQ(projects.PROJEKTE_Create(), "GUID-1");
    EXPECT_EQ(host.log(), together({new_row,
                                    {"Bezeichnung = ''", "Notiz = ''", "Stichwort = ''",
                                     "Stichwort2 = ''", "EMSK_Dsn = Null", "Projekte_Dsn = Null"},
                                    saving("PROJEKTEMKM")}));
}

TEST_F(ProjectsTest, CreateCutsNameAndKeywordsButNotTheNote) {
    const std::string text(120, 'x');
    projects.PROJEKTE_Create(std::string(60, 'n'), text, text, text, "EMSK", "ROOT");
    EXPECT_EQ(first_written("Bezeichnung"), "'" + std::string(50, 'n') + "'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
    EXPECT_EQ(first_written("Stichwort"), "'" + std::string(100, 'x') + "'");
    EXPECT_EQ(first_written("Stichwort2"), "'" + std::string(100, 'x') + "'");
    EXPECT_EQ(first_written("EMSK_Dsn"), "'EMSK'");
    EXPECT_EQ(first_written("Projekte_Dsn"), "'ROOT'");
}

TEST_F(ProjectsTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { projects.PROJEKTE_Create(); });
}

}  // namespace
}  // namespace cvdeveloper
