#include "host/maintenance/check.h"

#include <algorithm>
#include <fstream>

#include "cvdeveloper/enumerations.h"
#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/host_test.h"
#include "host/services/attachment_checks.h"
#include "host/services/blob.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class Checking : public SampleTest {
  protected:
    Texts problems() {
        connector = nullptr;
        return check_folder(host_path(), nothing_to_tell).problems;
    }
    // By way of the plain database, past the host.
    void run(const std::string& script) const {
        sqlite::Connection(host_path() + "/corvanta.db", {}).run_script(script);
    }
    std::string attach(const std::string& content) {
        const std::string source = folder.path("quelle.txt");
        std::ofstream(source) << content;
        return dynamic_cast<host::Blob&>(*connector->Blob())
            .SaveBlobFile(source, "OWNER", BLOBTYPE_ATTACHMENT);
    }
    [[nodiscard]] std::string stored() const {
        return host_path() + "/Anlagen/" + *stored_files(host_path()).begin();
    }
};

TEST_F(Checking, FindsNothingWrongInAFolderThatIsInOrder) {
    attach("eins");
    EXPECT_EQ(problems(), Texts());
    const CheckReport report = check_folder(host_path(), nothing_to_tell);
    EXPECT_EQ(report.attachments, 1);
    EXPECT_GT(report.tables, 35U);
    EXPECT_GT(report.rows, 1000);
}

TEST_F(Checking, TellsHowFarItHasCome) {
    double last = 0;
    Texts steps;
    check_folder(host_path(), [&](std::string_view step, double share) {
        EXPECT_GE(share, last);
        last = share;
        if (steps.empty() || steps.back() != step) {
            steps.emplace_back(step);
        }
    });
    EXPECT_EQ(steps, (Texts{"Datenbank", "Schema", "Datensätze", "Anlagen", "Rechte"}));
    EXPECT_EQ(last, 1.0);
}

TEST_F(Checking, NamesAttachmentsWhoseContentIsNotTheirs) {
    const std::string key = attach("eins");
    std::ofstream(stored()) << "zwei";
    EXPECT_EQ(problems(),
              Texts{"Die Anlage '" + key + "' hat einen anderen Inhalt als den gespeicherten."});
    std::ofstream(stored()) << "drei!";
    EXPECT_EQ(problems(), Texts{"Die Anlage '" + key + "' hat 5 statt 4 Bytes."});
    const std::string file = stored();
    fs::remove(file);
    EXPECT_EQ(problems(),
              Texts{"Die Anlage '" + key + "' kann nicht gelesen werden: Datei nicht gefunden (" +
                    file + ")."});
}

TEST_F(Checking, NamesFilesThatNoAttachmentNames) {
    const std::string name = "0123ABCD-0000-4000-8000-000000000000";
    std::ofstream(host_path() + "/Anlagen/" + name + ".neu") << "halb";
    EXPECT_EQ(problems(), Texts{"Zur Datei Anlagen/" + name +
                                ".neu gehört keine Anlage; die nächste Anmeldung entfernt sie."});
    connector = log_on();
    EXPECT_EQ(problems(), Texts());
}

TEST_F(Checking, NamesTablesColumnsAndIndexesThatAreMissing) {
    connector = nullptr;
    run("DROP TABLE postorte; ALTER TABLE AKT DROP COLUMN Treffpunkt; DROP INDEX "
        "ix_Blob_strStoredName");
    EXPECT_EQ(problems(),
              (Texts{"Es fehlt die Spalte AKT.Treffpunkt.", "Es fehlt die Tabelle postorte.",
                     "Es fehlt der Index ix_Blob_strStoredName."}));
}

TEST_F(Checking, NamesColumnsOfAnotherType) {
    connector = nullptr;
    run("ALTER TABLE AKT DROP COLUMN Treffpunkt; ALTER TABLE AKT ADD Treffpunkt VARCHAR(10)");
    EXPECT_EQ(problems(), Texts{"Die Spalte AKT.Treffpunkt ist anders angelegt als vorgesehen."});
}

TEST_F(Checking, NamesTablesWithoutProperKeysAndVersions) {
    connector = nullptr;
    run("UPDATE OBJ SET STAMP='alt' WHERE DSN IN (SELECT DSN FROM OBJ LIMIT 2);"
        "UPDATE AD SET DSN=' ' WHERE DSN IN (SELECT DSN FROM AD LIMIT 1)");
    const Texts found = problems();
    EXPECT_NE(std::ranges::find(found, "In OBJ ist STAMP keine Versionsnummer, in 2 Datensätzen."),
              found.end());
    EXPECT_NE(std::ranges::find(found, "In AD ist DSN leer, in 1 Datensätzen."), found.end());
}

TEST_F(Checking, NamesCountersThatAreBehind) {
    connector = nullptr;
    run("UPDATE cv_counter SET last_number=5 WHERE name='Kennung_AD'");
    const Texts found = problems();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found[0].starts_with(
        "Der Zähler Kennung_AD steht auf 5, in AD gibt es schon die Nummer A-1000"))
        << found[0];
}

TEST_F(Checking, SaysWhereADatabaseIsDamaged) {
    connector = nullptr;
    const std::string file = host_path() + "/corvanta.db";
    std::fstream database(file, std::ios::binary | std::ios::in | std::ios::out);
    for (const std::streamoff page : {100, 150, 200}) {
        database.seekp(page * 4096);
        database << std::string(2000, 'x');
    }
    database.close();
    const Texts found = problems();
    ASSERT_FALSE(found.empty());
    EXPECT_NE(found[0].find("beschädigt"), std::string::npos) << found[0];
}

TEST_F(Checking, NamesFilesThatOthersMayRead) {
    connector = nullptr;
    fs::permissions(host_path() + "/corvanta.db", fs::perms::group_read, fs::perm_options::add);
    EXPECT_EQ(problems(), Texts{"'" + host_path() +
                                "/corvanta.db' ist auch für andere als den Besitzer zugänglich."});
}

TEST_F(Checking, NamesAnOldLogThatOthersMayRead) {
    std::ofstream(host_path() + "/corvanta.log.alt") << "Zeile\n";
    fs::permissions(host_path() + "/corvanta.log.alt", fs::perms(0640));
    EXPECT_EQ(problems(),
              Texts{"'" + host_path() +
                    "/corvanta.log.alt' ist auch für andere als den Besitzer zugänglich."});
}

TEST_F(Checking, ChangesNothingAndKeepsNobodyFromWriting) {
    connector->BeginTrans();
    add_activity("x");
    EXPECT_EQ(check_folder(host_path(), nothing_to_tell).problems, Texts());
    connector->CommitTrans();
}

TEST_F(Checking, RefusesAFolderThatIsNone) {
    EXPECT_EQ(error_of([&] { check_folder(folder.path(), nothing_to_tell); }).number(),
              static_cast<std::int32_t>(HostError::Folder));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
