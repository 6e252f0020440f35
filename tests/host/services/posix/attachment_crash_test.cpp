// A process that stores attachments is killed at random moments.
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <map>
#include <random>
#include <thread>

#include "cvdeveloper/automation/conversions.h"
#include "host/host_test.h"
#include "host/services/attachment_checks.h"
#include "host/services/blob.h"

namespace cvdeveloper::standalone::testing {
namespace {

constexpr int rounds = 50;
constexpr std::int32_t content_kind = 6;

// One line of what the child has done: '+' for an attachment that is committed, '-' for one that
// it is about to delete or replace.
struct Note {
    char sign;
    std::array<char, 36> key;
};

// What the child does until it is killed.
class Worker {
  public:
    Worker(Connector& connector, std::string source, int notes, unsigned seed)
        : connector_(connector), source_(std::move(source)), notes_(notes), random_(seed) {}

    [[noreturn]] void work() {
        for (;;) {
            switch (random_() % 6) {
                case 0:
                    in_unit();
                    break;
                case 1:
                    in_transaction();
                    break;
                case 2:
                    remove();
                    break;
                case 3:
                    replace();
                    break;
                default:
                    note('+', add());
                    break;
            }
        }
    }

  private:
    host::Blob& blob() { return dynamic_cast<host::Blob&>(*connector_.Blob()); }
    void write_source() {
        std::ofstream(source_, std::ios::binary)
            << std::string(random_() % 300'000, static_cast<char>(random_()));
    }
    std::string add() {
        write_source();
        const std::string key = blob().SaveBlobFile(source_, "OWNER", content_kind);
        keys_.push_back(blob().SaveBlobFile(source_, "OWNER", content_kind, key, true));
        return key;
    }
    void in_unit() {
        connector_.unit_of_work()->enter();
        const std::array keys = {add(), add()};
        connector_.unit_of_work()->leave();
        note('+', keys[0]);
        note('+', keys[1]);
    }
    void in_transaction() {
        connector_.BeginTrans();
        const std::array keys = {add(), add()};
        if (random_() % 2 == 0) {
            keys_.resize(keys_.size() - 2);
            connector_.RollbackTrans();
            return;
        }
        connector_.CommitTrans();
        note('+', keys[0]);
        note('+', keys[1]);
    }
    void remove() {
        if (!keys_.empty()) {
            const std::string key = keys_.back();
            keys_.pop_back();
            note('-', key);
            blob().DeleteBlobFile(key, "", content_kind, "");
        }
    }
    void replace() {
        if (!keys_.empty()) {
            write_source();
            blob().SaveBlobFile(source_, "OWNER", content_kind, keys_[random_() % keys_.size()],
                                true);
        }
    }
    void note(char sign, const std::string& key) {
        Note line{.sign = sign, .key = {}};
        key.copy(line.key.data(), line.key.size());
        static_cast<void>(!write(notes_, &line, sizeof line));
    }

    Connector& connector_;
    std::string source_;
    int notes_;
    std::mt19937 random_;
    std::vector<std::string> keys_;
};

class AttachmentCrashTest : public HostTest {
  protected:
    // Has a child work for a while after its log-on, and kills it. The keys that must be there.
    std::vector<std::string> run_and_kill(unsigned seed, std::chrono::microseconds time) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        const pid_t child = fork();
        if (child == 0) {
            work(seed, ends[1]);
        }
        close(ends[1]);
        std::map<std::string, bool> keys;
        Note line{};
        EXPECT_EQ(read(ends[0], &line, sizeof line), static_cast<ssize_t>(sizeof line));
        std::this_thread::sleep_for(time);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(ends[0], &line, sizeof line) == static_cast<ssize_t>(sizeof line)) {
            keys[std::string(line.key.data(), line.key.size())] = line.sign == '+';
        }
        close(ends[0]);
        std::vector<std::string> kept;
        for (const auto& [key, is_kept] : keys) {
            if (is_kept) {
                kept.push_back(key);
            }
        }
        return kept;
    }

  private:
    [[noreturn]] void work(unsigned seed, int notes) {
        try {
            const Ref<Connector> own = log_on();
            const Note ready{.sign = '!', .key = {}};
            static_cast<void>(!write(notes, &ready, sizeof ready));
            Worker(*own, folder.path("quelle"), notes, seed).work();
        } catch (const std::exception& error) {
            static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
            _exit(EXIT_FAILURE);
        }
    }
};

TEST_F(AttachmentCrashTest, RowsAndFilesAgreeAfterEachOfFiftyKills) {
    connector = nullptr;  // a forked child must not use its parent's connection
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::size_t survived = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto kept = run_and_kill(static_cast<unsigned>(random()),
                                       std::chrono::microseconds(random() % 40'000));
        connector = log_on();
        expect_rows_and_files_agree(host_path(), *connector);
        for (const std::string& key : kept) {
            EXPECT_FALSE(select("SELECT DSN FROM Blob WHERE DSN='" + key + "'").at_end()) << key;
        }
        survived += kept.size();
        connector = nullptr;
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
    EXPECT_GT(survived, 0U);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
