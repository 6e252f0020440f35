#include "host/folder/host_log.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <set>

#include "host/host_test.h"
#include "host/platform/open_file.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

constexpr int processes = 8;
constexpr int lines_of_each = 400;

class AHostsLogOfSeveralProcesses : public ::testing::Test {
  protected:
    [[nodiscard]] fs::path path() const { return folder.path("corvanta.log"); }
    [[nodiscard]] fs::path old_path() const { return HostLog::old_one_of(path()); }

    void write_from_all(std::uint64_t largest_size) const {
        for (int process = 0; process < processes; ++process) {
            if (fork() == 0) {
                const HostLog log(path(), largest_size);
                for (int line = 0; line < lines_of_each; ++line) {
                    log.note("<" + std::to_string(process) + "/" + std::to_string(line) + ">");
                }
                _exit(0);
            }
        }
        for (int process = 0; process < processes; ++process) {
            wait(nullptr);
        }
    }
    // What the lines of both files say, each of them whole.
    [[nodiscard]] std::multiset<std::string> events() const {
        std::multiset<std::string> found;
        for (const fs::path& file : {path(), old_path()}) {
            std::ifstream stream(file);
            for (std::string line; std::getline(stream, line);) {
                const std::size_t begin = line.find('<');
                const std::size_t end = line.find('>');
                EXPECT_EQ(begin, std::string_view("2026-03-01 14:30:00  ").size()) << line;
                EXPECT_EQ(line.substr(end, 11), "> (Prozess ") << line;
                EXPECT_EQ(line.find(')'), line.size() - 1) << line;
                found.insert(line.substr(begin, end - begin));
            }
        }
        return found;
    }

    TemporaryFolder folder;
};

TEST_F(AHostsLogOfSeveralProcesses, LosesNoLineWhereItBeginsAnew) {
    // All lines together need more than one file and less than two.
    write_from_all(100'000);
    EXPECT_TRUE(fs::exists(old_path()));
    const std::multiset<std::string> found = events();
    EXPECT_EQ(found.size(), std::size_t{processes} * lines_of_each);
    EXPECT_EQ((std::set<std::string>(found.begin(), found.end()).size()), found.size());
}

TEST_F(AHostsLogOfSeveralProcesses, NeverGrowsBeyondItsSize) {
    write_from_all(2'000);
    EXPECT_LE(fs::file_size(path()), 2'000U);
    EXPECT_LE(fs::file_size(old_path()), 2'000U);
    // One that is full has more lines than this.
    EXPECT_GT(events().size(), 30U);
}

TEST_F(AHostsLogOfSeveralProcesses, IsForItsOwnerAloneBeforeAndAfter) {
    const mode_t before = umask(0);
    write_from_all(2'000);
    umask(before);
    for (const fs::path& file : {path(), old_path()}) {
        EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write)
            << file;
    }
}

TEST_F(AHostsLogOfSeveralProcesses, WaitsForNobodyWhoHoldsItForLong) {
    OpenFile held(path().string(), OpenFile::Mode::Append);
    ASSERT_TRUE(held.try_lock_alone());
    HostLog(path(), 1).note("<trotzdem>");
    EXPECT_EQ(events().count("<trotzdem"), 1U);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
