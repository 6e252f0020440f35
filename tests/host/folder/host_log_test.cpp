#include "host/folder/host_log.h"

#include <fstream>
#include <iterator>

#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

class AHostsLog : public ::testing::Test {
  protected:
    [[nodiscard]] fs::path path() const { return paths::to_system(folder.path("corvanta.log")); }
    [[nodiscard]] fs::path old_path() const { return HostLog::old_one_of(path()); }
    static std::string content(const fs::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    // The length of the line that an event makes: time and process are as long each time.
    std::uint64_t length_of(std::string_view event) const {
        const fs::path file = paths::to_system(folder.path("probe.log"));
        HostLog(file, 0).note(event);
        const std::uint64_t length = fs::file_size(file);
        fs::remove(file);
        return length;
    }

    TemporaryFolder folder;
};

TEST_F(AHostsLog, BeginsAnewBeforeItGrowsBeyondItsSize) {
    const HostLog log(path(), 2 * length_of("Zeile 1"));
    log.note("Zeile 1");
    log.note("Zeile 2");
    EXPECT_FALSE(fs::exists(old_path()));
    log.note("Zeile 3");
    EXPECT_EQ(content(path()).size(), length_of("Zeile 3"));
    EXPECT_NE(content(path()).find("  Zeile 3 (Prozess "), std::string::npos);
    EXPECT_NE(content(old_path()).find("  Zeile 1 (Prozess "), std::string::npos);
    EXPECT_NE(content(old_path()).find("  Zeile 2 (Prozess "), std::string::npos);
}

TEST_F(AHostsLog, KeepsOneOldFile) {
    const HostLog log(path(), length_of("Zeile 1"));
    for (const char* event : {"Zeile 1", "Zeile 2", "Zeile 3"}) {
        log.note(event);
    }
    EXPECT_NE(content(path()).find("Zeile 3"), std::string::npos);
    EXPECT_NE(content(old_path()).find("Zeile 2"), std::string::npos);
    EXPECT_EQ(content(old_path()).find("Zeile 1"), std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(path().parent_path()), {}), 2);
}

TEST_F(AHostsLog, TakesALineLongerThanItsSize) {
    const HostLog log(path(), 1);
    log.note("Zeile 1");
    EXPECT_FALSE(fs::exists(old_path()));
    EXPECT_NE(content(path()).find("Zeile 1"), std::string::npos);
}

TEST_F(AHostsLog, OfSizeNoughtNeverBeginsAnew) {
    const HostLog log(path(), 0);
    for (int i = 0; i < 100; ++i) {
        log.note("Zeile");
    }
    EXPECT_EQ(fs::file_size(path()), 100 * length_of("Zeile"));
    EXPECT_FALSE(fs::exists(old_path()));
}

TEST_F(AHostsLog, GoesOnWhereTheOldOneCannotBeReplaced) {
    fs::create_directories(old_path() / "kein Protokoll");
    const HostLog log(path(), length_of("Zeile 1"));
    log.note("Zeile 1");
    log.note("Zeile 2");
    EXPECT_NE(content(path()).find("Zeile 1"), std::string::npos);
    EXPECT_NE(content(path()).find("Zeile 2"), std::string::npos);
}

class ALogonToAFolder : public HostTest {};

TEST_F(ALogonToAFolder, LogsUpToTheSizeInItsSettings) {
    const fs::path log = paths::to_system(host_path()) / "corvanta.log";
    std::ofstream(log, std::ios::binary) << std::string(2'990, 'x') << "\n";
    std::ofstream(paths::to_system(host_path()) / "corvanta.ini") << "[Protokoll]\nUmfang=3\n";
    error_of([&] { Connector().Logon(host_path(), "niemand", "x"); });
    EXPECT_EQ(fs::file_size(HostLog::old_one_of(log)), 2'991U);
    EXPECT_LT(fs::file_size(log), 200U);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
