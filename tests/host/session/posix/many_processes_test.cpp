// Several processes and several users at the same records.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/host_test.h"
#include "host/maintenance/check.h"
#include "host/register.h"
#include "host/services/attachment_checks.h"
#include "support/standalone_application.h"

namespace cvdeveloper::standalone::testing {
namespace {

constexpr int processes = 8;
constexpr int records = 1'000;

class ManyProcesses : public ::testing::Test {
  protected:
    ManyProcesses() {
        std::filesystem::copy(prepared_folder(false), path(),
                              std::filesystem::copy_options::recursive);
    }
    [[nodiscard]] std::string path() const { return folder.path("büro"); }

    // Exit code 0 where everything was written.
    int create_records(int process) const {
        try {
            register_standalone_host();
            const auto app = make_object<cvdeveloper::Application>();
            app->put_LogPath(folder.path());
            app->Corvanta_InitConnector(path(), "chef", "");
            for (int i = 0; i < records; ++i) {
                app->AKT_Create("", std::to_string(process) + "/" + std::to_string(i));
            }
            app->Corvanta_Done();
            return 0;
        } catch (const std::exception& error) {
            static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
            return 1;
        }
    }

    TemporaryFolder folder{folder_in_memory()};
};

TEST_F(ManyProcesses, CreateThousandsOfRecordsWithoutLosingOneOrANumber) {
    for (int process = 0; process < processes; ++process) {
        if (fork() == 0) {
            _exit(create_records(process));
        }
    }
    for (int process = 0; process < processes; ++process) {
        int status = -1;
        wait(&status);
        EXPECT_EQ(status, 0);
    }
    Connector connector;
    connector.Logon(path(), "chef", "");
    const auto count = [&](const std::string& what) {
        return connector.GetRecordset("SELECT count(" + what + ") FROM AKT", {}).value_at(0);
    };
    EXPECT_EQ(count("*"), Variant(processes * records));
    EXPECT_EQ(count("DISTINCT Subject"), Variant(processes * records));
    EXPECT_EQ(count("DISTINCT Kennung"), Variant(processes * records));
    EXPECT_EQ(connector.STDRS().value("Kennung_AKT"), Variant("K-108000  ")) << "numbers were lost";
    EXPECT_TRUE(check_folder(path(), nothing_to_tell).problems.empty());
}

class TwoWritersOfARow : public StandaloneApplicationTest {
  protected:
    TwoWritersOfARow() {
        second->put_LogPath(folder.path());
        second->Corvanta_InitConnector(folder.path("büro"), "chef", "");
        key = app->AKT_Create();
        ours = app->oBase()->Sql_Find("AKT", "DSN='" + key + "'", "");
        theirs = second->oBase()->Sql_Find("AKT", "DSN='" + key + "'", "");
        ours.set("Subject", "erster");
        theirs.set("Subject", "zweiter");
        app->oBase()->CV_UpdateRecordset(ours);
    }
    ~TwoWritersOfARow() override { second->Corvanta_Done(); }

    [[nodiscard]] std::string conflict() const {
        return "Der Datensatz '" + key +
               "' in AKT wurde inzwischen von anderer Seite geändert (Subject): dort steht jetzt "
               "'erster', geschrieben werden sollte 'zweiter'.";
    }

    Ref<cvdeveloper::Application> second = make_object<cvdeveloper::Application>();
    std::string key;
    RecordSet ours;
    RecordSet theirs;
};

TEST_F(TwoWritersOfARow, TellTheSecondWhoChangedWhat) {
    const AutomationError error = error_of([&] { second->oBase()->CV_UpdateRecordset(theirs); });
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::RowChanged));
    EXPECT_EQ(error.description(), conflict());
    EXPECT_EQ(single("SELECT Subject FROM AKT WHERE DSN='" + key + "'"), Variant("erster"));
}

TEST_F(TwoWritersOfARow, LogTheConflictWhereStatementsAreLogged) {
    second->put_FlagSqlLog(true);
    second->oBase()->CV_UpdateRecordset(theirs);
    const std::string log = text_of_file(folder.path("cvDeveloper.log"));
    EXPECT_NE(log.find("ERROR GetRecordset"), std::string::npos) << log;
    EXPECT_NE(log.find(conflict()), std::string::npos) << log;
    EXPECT_EQ(single("SELECT Subject FROM AKT WHERE DSN='" + key + "'"), Variant("erster"));
}

TEST_F(TwoWritersOfARow, LetTheSecondWriteWhatItHasReadAgain) {
    theirs = second->oBase()->Sql_Find("AKT", "DSN='" + key + "'", "");
    theirs.set("Subject", "zweiter");
    second->oBase()->CV_UpdateRecordset(theirs);
    theirs.set("Subject", "dritter");
    second->oBase()->CV_UpdateRecordset(theirs);
    EXPECT_EQ(single("SELECT Subject FROM AKT WHERE DSN='" + key + "'"), Variant("dritter"));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
