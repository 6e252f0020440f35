// A process that writes records and stores attachments is killed at random moments.
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <map>
#include <random>
#include <thread>

#include "cvdeveloper/automation/conversions.h"
#include "host/folder/host_folder.h"
#include "host/host_test.h"
#include "host/keys.h"
#include "host/maintenance/check.h"
#include "host/services/attachment_checks.h"
#include "host/services/blob.h"

namespace cvdeveloper::standalone::testing {
namespace {

constexpr int rounds = 100;
constexpr int rounds_of_a_folder = 20;
constexpr std::int32_t content_kind = 6;

// One line of what the child has done: 'r' for a record and '+' for an attachment that is
// committed, '-' for an attachment that it is about to delete.
struct Note {
    char sign;
    std::array<char, 36> key;
    std::array<char, 10> number;
};

// What the child does until it is killed.
class Worker {
  public:
    Worker(const Ref<HostSession>& session, std::string source, int notes, unsigned seed)
        : session_(*session),
          blob_(make_object<Blob>(session)),
          source_(std::move(source)),
          notes_(notes),
          random_(seed) {}

    [[noreturn]] void work() {
        for (;;) {
            switch (random_() % 8) {
                case 0:
                    attachments_in_unit();
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
                case 4:
                    note('+', attach(), "");
                    break;
                default:
                    record_in_unit();
                    break;
            }
        }
    }

  private:
    struct Record {
        std::string key;
        std::string number;
    };

    // A number, a record with it, and a detail value of the record.
    Record add_record() {
        const Record record{
            .key = new_key(),
            .number = to_text(session_.get_record_set("SELECT Kennung_AKT FROM Std").value_at(0))};
        RecordSet rs = session_.get_record_set("SELECT * FROM AKT WHERE 1=2");
        rs.add_new();
        rs.set("DSN", record.key);
        rs.set("Kennung", record.number);
        rs.set("Notiz", std::string(random_() % 5'000, 'x'));
        session_.update_record_set(rs);
        RecordSet detail = session_.get_record_set("SELECT * FROM AKTDET WHERE 1=2");
        detail.add_new();
        detail.set("DSN", new_key());
        detail.set("AKT_DSN", record.key);
        session_.update_record_set(detail);
        return record;
    }
    void record_in_unit() {
        session_.unit_of_work().enter();
        const Record record = add_record();
        session_.unit_of_work().leave();
        note('r', record.key, record.number);
    }
    void write_source() {
        std::ofstream(source_, std::ios::binary)
            << std::string(random_() % 60'000, static_cast<char>(random_()));
    }
    std::string attach() {
        write_source();
        const std::string key = blob_->SaveBlobFile(source_, "OWNER", content_kind);
        keys_.push_back(blob_->SaveBlobFile(source_, "OWNER", content_kind, key, true));
        return key;
    }
    void attachments_in_unit() {
        session_.unit_of_work().enter();
        const std::array keys = {attach(), attach()};
        session_.unit_of_work().leave();
        note('+', keys[0], "");
        note('+', keys[1], "");
    }
    void in_transaction() {
        session_.begin_transaction();
        const Record record = add_record();
        const std::string key = attach();
        if (random_() % 2 == 0) {
            keys_.pop_back();
            session_.roll_back_transaction();
            return;
        }
        session_.commit_transaction();
        note('r', record.key, record.number);
        note('+', key, "");
    }
    void remove() {
        if (!keys_.empty()) {
            const std::string key = keys_.back();
            keys_.pop_back();
            note('-', key, "");
            blob_->DeleteBlobFile(key, "", content_kind, "");
        }
    }
    void replace() {
        if (!keys_.empty()) {
            write_source();
            blob_->SaveBlobFile(source_, "OWNER", content_kind, keys_[random_() % keys_.size()],
                                true);
        }
    }
    void note(char sign, const std::string& key, const std::string& number) {
        Note line{.sign = sign, .key = {}, .number = {}};
        key.copy(line.key.data(), line.key.size());
        number.copy(line.number.data(), line.number.size());
        static_cast<void>(!write(notes_, &line, sizeof line));
    }

    HostSession& session_;
    Ref<Blob> blob_;
    std::string source_;
    int notes_;
    std::mt19937 random_;
    std::vector<std::string> keys_;
};

// What the child has been told is kept.
struct Acknowledged {
    std::map<std::string, std::string> records;  // numbers by keys
    std::map<std::string, bool> attachments;     // false: may be gone
};

class KilledWriter : public ::testing::Test {
  protected:
    void take_new_folder() {
        folder_ = std::make_unique<TemporaryFolder>(folder_in_memory());
        std::filesystem::copy(prepared_folder(false), path(),
                              std::filesystem::copy_options::recursive);
    }
    [[nodiscard]] std::string path() const { return folder_->path("büro"); }
    [[nodiscard]] Ref<Connector> log_on() const {
        auto connector = make_object<Connector>();
        connector->Logon(path(), "chef", "");
        return connector;
    }

    // Has a child work until it has told of some commits, and kills it a moment later.
    Acknowledged run_and_kill(unsigned seed, unsigned commits, std::chrono::microseconds time) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        const pid_t child = fork();
        if (child == 0) {
            work(seed, ends[1]);
        }
        close(ends[1]);
        Acknowledged acknowledged;
        for (unsigned i = 0; i < commits; ++i) {
            take_note(ends[0], acknowledged);
        }
        std::this_thread::sleep_for(time);
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "the child ended by itself";
        while (take_note(ends[0], acknowledged)) {
        }
        close(ends[0]);
        return acknowledged;
    }

    void expect_all_there(Connector& connector, const Acknowledged& acknowledged) {
        for (const auto& [key, number] : acknowledged.records) {
            const RecordSet rs =
                connector.GetRecordset("SELECT Kennung FROM AKT WHERE DSN='" + key + "'", {});
            ASSERT_FALSE(rs.at_end()) << key;
            EXPECT_EQ(to_text(rs.value_at(0)), number);
            EXPECT_FALSE(
                connector.GetRecordset("SELECT 1 FROM AKTDET WHERE AKT_DSN='" + key + "'", {})
                    .at_end())
                << "a unit of work is there by half";
        }
        for (const auto& [key, is_kept] : acknowledged.attachments) {
            EXPECT_TRUE(
                !is_kept ||
                !connector.GetRecordset("SELECT 1 FROM Blob WHERE DSN='" + key + "'", {}).at_end())
                << key;
        }
    }

  private:
    static bool take_note(int notes, Acknowledged& acknowledged) {
        Note line{};
        if (read(notes, &line, sizeof line) != static_cast<ssize_t>(sizeof line)) {
            return false;
        }
        const std::string key(line.key.data(), line.key.size());
        if (line.sign == 'r') {
            acknowledged.records[key] = std::string(line.number.data(), line.number.size());
        } else {
            acknowledged.attachments[key] = line.sign == '+';
        }
        return true;
    }
    [[noreturn]] void work(unsigned seed, int notes) {
        try {
            // Checking a password would take most of the time.
            HostFolder host_folder = HostFolder::open(path());
            auto database = host_folder.open_database();
            const auto session = make_object<HostSession>(std::move(host_folder),
                                                          std::move(database), std::string());
            Worker(session, folder_->path("quelle"), notes, seed).work();
        } catch (const std::exception& error) {
            static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
            _exit(EXIT_FAILURE);
        }
    }

    std::unique_ptr<TemporaryFolder> folder_;
};

TEST_F(KilledWriter, LosesNothingThatItWasToldIsKeptInAHundredKills) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::size_t survived = 0;
    for (int round = 0; round < rounds; ++round) {
        if (round % rounds_of_a_folder == 0) {
            take_new_folder();
        }
        const Acknowledged acknowledged =
            run_and_kill(static_cast<unsigned>(random()), 1 + random() % 8,
                         std::chrono::microseconds(random() % 4'000));
        const Ref<Connector> connector = log_on();  // cleans up what was half done
        expect_all_there(*connector, acknowledged);
        expect_rows_and_files_agree(path(), *connector);
        EXPECT_TRUE(connector
                        ->GetRecordset("SELECT Kennung FROM AKT GROUP BY Kennung "
                                       "HAVING count(*) > 1",
                                       {})
                        .at_end())
            << "two records have one number";
        for (const std::string& problem : check_folder(path(), nothing_to_tell).problems) {
            ADD_FAILURE() << problem;
        }
        survived += acknowledged.records.size() + acknowledged.attachments.size();
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
    EXPECT_GT(survived, 100U);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
