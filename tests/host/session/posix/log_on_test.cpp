#include "host/session/log_on.h"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <iterator>

#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/host_test.h"
#include "host/session/logon_delay.h"
#include "host/session/users.h"

namespace cvdeveloper::standalone::testing {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class LoggingOn : public HostTest {
  protected:
    LoggingOn() { Users(*database).add("Anna", "geheim", false); }

    std::string refusal(std::string_view user, std::string_view password) {
        const AutomationError error =
            error_of([&] { Connector().Logon(host_path(), user, password); });
        EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::LogonFailed));
        return error.description();
    }
    template <class Action>
    static Clock::duration time_of(const Action& action) {
        const Clock::time_point begin = Clock::now();
        action();
        return Clock::now() - begin;
    }
    [[nodiscard]] std::string log() const {
        std::ifstream file(host_path() + "/corvanta.log");
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void set_failures(std::string_view user, int failures, double seconds_ahead) {
        const Value values[] = {std::int64_t{failures}, seconds_ahead, user};
        database
            ->prepare(
                "INSERT OR REPLACE INTO cv_logon (failures, next_try, Benutzer_DSN) "
                "SELECT ?, (julianday('now') - 2440587.5) * 86400 + ?, DSN FROM Benutzer "
                "WHERE Login_Name=?",
                Author::Host)
            ->execute(values);
    }

    std::unique_ptr<Database> database = HostFolder::open(host_path()).open_database();
};

TEST(LogonDelays, GrowUpToABound) {
    EXPECT_EQ(delay_after(0), 0ms);
    EXPECT_EQ(delay_after(1), 250ms);
    EXPECT_EQ(delay_after(2), 500ms);
    EXPECT_EQ(delay_after(5), 4s);
    EXPECT_EQ(delay_after(7), 15s);
    EXPECT_EQ(delay_after(1'000'000), 15s);
}

TEST_F(LoggingOn, WaitsLongerAfterEachFailure) {
    EXPECT_GE(time_of([&] {
                  refusal("anna", "x");
                  refusal("anna", "x");
                  refusal("ANNA ", "x");
              }),
              250ms + 500ms);
}

TEST_F(LoggingOn, WaitsForFailuresOfOtherProcesses) {
    const pid_t child = fork();
    if (child == 0) {
        bool refused = false;
        try {
            Connector().Logon(host_path(), "anna", "x");
        } catch (const AutomationError&) {
            refused = true;
        }
        _exit(refused ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    ASSERT_EQ(status, 0);
    set_failures("anna", 1, 0.6);
    EXPECT_GE(time_of([&] { Connector().Logon(host_path(), "anna", "geheim"); }), 550ms);
}

TEST_F(LoggingOn, OfOneUserKeepsNobodyElseWaiting) {
    set_failures("anna", 9, 12);
    EXPECT_LT(time_of([&] { static_cast<void>(log_on()); }), 5s);
}

TEST_F(LoggingOn, ForgetsFailuresAfterASuccess) {
    refusal("anna", "x");
    Connector().Logon(host_path(), "anna", "geheim");
    EXPECT_EQ(single("SELECT count(*) FROM Benutzer WHERE Login_Name='anna'"), Variant(1));
    Rows rows(1);
    database->prepare("SELECT count(*) FROM cv_logon", Author::Host)->query({}, rows);
    EXPECT_EQ(rows[0][0].integer, 0);
}

TEST_F(LoggingOn, ForgetsFailuresAfterAWhile) {
    set_failures("anna", 30, -16 * 60);
    EXPECT_LT(time_of([&] { Connector().Logon(host_path(), "anna", "geheim"); }), 5s);
}

TEST_F(LoggingOn, DoesNotWaitForAClockThatWasPutBack) {
    set_failures("anna", 1, 1e9);
    EXPECT_EQ(refusal("anna", "geheim"),
              "Die Anmeldung von 'anna' ist fehlgeschlagen: nach mehreren Fehlversuchen warten "
              "schon andere; bitte in einer halben Minute noch einmal versuchen.");
    Rows rows(1);
    database->prepare("SELECT failures FROM cv_logon", Author::Host)->query({}, rows);
    EXPECT_EQ(rows[0][0].integer, 1) << "a log-on that was not tried counted";
}

TEST_F(LoggingOn, WorksWhileSomebodyElseWrites) {
    std::ofstream(host_path() + "/corvanta.ini") << "[Datenbank]\nWartezeit=0\n";
    connector->BeginTrans();
    refusal("anna", "x");
    Connector().Logon(host_path(), "anna", "geheim");
}

TEST_F(LoggingOn, LogsFailuresWithoutPasswordsAndUnknownNames) {
    refusal("anna", "mein-kennwort");
    refusal("anna", "noch-eins");
    refusal("kennwort-statt-name", "");
    const std::string text = log();
    EXPECT_NE(text.find("  Anmeldung von 'Anna' abgelehnt: falsches Kennwort, Fehlversuch 1 ("),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("falsches Kennwort, Fehlversuch 2 ("), std::string::npos) << text;
    EXPECT_NE(text.find("Anmeldung eines unbekannten Benutzers abgelehnt"), std::string::npos);
    for (const char* secret : {"mein-kennwort", "noch-eins", "kennwort-statt-name"}) {
        EXPECT_EQ(text.find(secret), std::string::npos);
    }
    EXPECT_EQ(std::filesystem::status(host_path() + "/corvanta.log").permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(LoggingOn, OfAUserWithoutAPasswordFails) {
    save([this] {
        const RecordSet rs = select("SELECT * FROM Benutzer WHERE 1=2");
        rs.add_new();
        rs.set("DSN", "B2");
        rs.set("Login_Name", "neu");
        return rs;
    }());
    EXPECT_NE(refusal("neu", "").find("Benutzer oder Kennwort stimmt nicht"), std::string::npos);
}

TEST_F(LoggingOn, IsForUsersOfDifferentNames) {
    EXPECT_EQ(error_of([&] { Users(*database).add("ANNA", "x", false); }).description(),
              "Den Benutzer 'ANNA' gibt es schon.");
    EXPECT_EQ(error_of([&] { Users(*database).add("", "x", false); }).description(),
              "Ein Benutzername hat 1 bis 50 Zeichen.");
    EXPECT_EQ(error_of([&] { Users(*database).set_password("niemand", "x"); }).description(),
              "Einen Benutzer 'niemand' gibt es nicht.");
}

TEST_F(LoggingOn, TakesANewPasswordAndNoLongerTheOldOne) {
    Users(*database).set_password("anna", "neu");
    Connector().Logon(host_path(), "anna", "NEU");
    refusal("anna", "geheim");
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
