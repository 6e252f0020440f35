// Disks that are full, files that are damaged, rights that are missing: one clear error each,
// nothing half-written, and a session that goes on where that makes sense.
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <sched.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/host_test.h"
#include "host/maintenance/backup.h"
#include "host/maintenance/check.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

std::int32_t number(HostError error) {
    return static_cast<std::int32_t>(error);
}

class Failing : public HostTest {
  protected:
    void set(const std::string& settings) const {
        std::ofstream(host_path() + "/corvanta.ini") << "[Datenbank]\n" << settings << "\n";
    }
    RecordSet new_rows(Connector& by, int count, std::size_t size) {
        const RecordSet rs = by.GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
        for (int i = 0; i < count; ++i) {
            rs.add_new();
            rs.set("DSN", "N" + std::to_string(i));
            rs.set("Notiz", std::string(size, 'x'));
        }
        return rs;
    }
    // Runs a part of the test in a process of its own, which may lose rights.
    template <class Part>
    void in_child(const Part& part) {
        connector = nullptr;  // a forked child must not use its parent's connection
        const pid_t child = fork();
        if (child == 0) {
            try {
                part();
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
            _exit(HasFailure() ? 1 : 0);
        }
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
};

TEST_F(Failing, StatementThatRunsTooLongIsStoppedAndTheSessionGoesOn) {
    set("Laufzeit=1");
    connector = log_on();
    add_activity("x");
    const std::string endless =
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) SELECT count(*) FROM n";
    const auto begin = std::chrono::steady_clock::now();
    const AutomationError error = error_of([&] { select(endless); });
    EXPECT_EQ(error.number(), number(HostError::StatementTooLong));
    EXPECT_EQ(
        error.description(),
        "Die Anweisung wurde abgebrochen: sie läuft länger als 1 Sekunde. Anweisung: " + endless);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
    EXPECT_EQ(single("SELECT Subject FROM AKT"), Variant("x"));
    add_activity("y");
}

TEST_F(Failing, StatementThatRunsTooLongLeavesATransactionAsItIs) {
    set("Laufzeit=1");
    connector = log_on();
    connector->BeginTrans();
    add_activity("x");
    EXPECT_THROW(select("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) "
                        "SELECT count(*) FROM n"),
                 AutomationError);
    connector->CommitTrans();
    EXPECT_EQ(single("SELECT Subject FROM AKT"), Variant("x"));
}

TEST_F(Failing, DatabaseThatIsLockedForTooLongIsNamedWithTheTime) {
    set("Wartezeit=1");
    const Ref<Connector> other = log_on();
    connector->BeginTrans();
    RecordSet rs = new_rows(*other, 2, 10);
    const auto begin = std::chrono::steady_clock::now();
    const AutomationError error = error_of([&] { other->UpdateRecordset(rs, {}); });
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(900));
    EXPECT_EQ(error.number(), number(HostError::LockTimeout));
    EXPECT_EQ(error.description(),
              "Die Datenbank ist seit mehr als 1 Sekunde von anderer Seite gesperrt.");
    EXPECT_EQ(other->GetRecordset("SELECT count(*) FROM AKT", {}).value_at(0), Variant(0));
    connector->RollbackTrans();
    other->UpdateRecordset(rs, {});
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(2));
}

TEST_F(Failing, SettingsThatAreNoneAreNamed) {
    for (const auto& [settings, text] :
         {std::pair("Art=MariaDB", "Art 'MariaDB'; möglich ist SQLite."),
          std::pair("Wartezeit=bald", "Wartezeit 'bald'; möglich ist eine Zahl von 0 bis 100000."),
          std::pair("Laufzeit=-1", "Laufzeit '-1'; möglich ist eine Zahl von 0 bis 100000."),
          std::pair("Sicherheit=sehr",
                    "Sicherheit 'sehr'; möglich ist voll, schnell oder ohne.")}) {
        set(settings);
        const AutomationError error = error_of([&] { static_cast<void>(log_on()); });
        EXPECT_EQ(error.number(), number(HostError::Folder));
        EXPECT_EQ(error.description(),
                  "In der Datei corvanta.ini im Ordner '" + host_path() + "' steht bei " + text);
    }
}

TEST_F(Failing, SettingsSayWhatReachesTheDisk) {
    const auto level = [this](const std::string& settings) {
        set(settings);
        Rows rows(1);
        HostFolder::open(host_path())
            .open_database()
            ->prepare("PRAGMA synchronous", Author::Host)
            ->query({}, rows);
        return rows[0][0].integer;
    };
    EXPECT_EQ(level(""), 2);
    EXPECT_EQ(level("Sicherheit=voll"), 2);
    EXPECT_EQ(level("Sicherheit=schnell"), 1);
    EXPECT_EQ(level("Sicherheit=OHNE"), 0);
    Rows rows(1);
    HostFolder::open(host_path())
        .open_database()
        ->prepare("PRAGMA journal_mode", Author::Host)
        ->query({}, rows);
    EXPECT_EQ(rows[0][0].text(), "wal");
}

TEST_F(Failing, DamageIsToldWhereItIsReadAndOtherTablesGoOn) {
    for (int i = 0; i < 40; ++i) {
        add_activity(std::string(200, 'x'));
    }
    Rows pages(1);
    {
        const auto database = HostFolder::open(host_path()).open_database();
        database->prepare("SELECT rootpage FROM sqlite_schema WHERE name='AKT'", Author::Host)
            ->query({}, pages);
    }
    connector = nullptr;
    {
        std::fstream file(host_path() + "/corvanta.db",
                          std::ios::binary | std::ios::in | std::ios::out);
        file.seekp((pages[0][0].integer - 1) * 4096);
        file << std::string(4096, '\xFF');
    }
    connector = log_on();
    const AutomationError error = error_of([&] { select("SELECT * FROM AKT"); });
    EXPECT_EQ(error.number(), number(HostError::Damaged));
    EXPECT_NE(error.description().find("/corvanta.db' ist beschädigt ("), std::string::npos)
        << error.description();
    EXPECT_EQ(single("SELECT Login_Name FROM Benutzer"), Variant("chef"));
}

TEST_F(Failing, FileThatIsNoDatabaseIsDamaged) {
    connector = nullptr;
    for (const char* part : {"-wal", "-shm"}) {
        fs::remove(host_path() + "/corvanta.db" + part);
    }
    std::ofstream(host_path() + "/corvanta.db") << std::string(8000, 'x');
    EXPECT_EQ(error_of([&] { static_cast<void>(log_on()); }).number(), number(HostError::Damaged));
}

TEST_F(Failing, FolderWithoutRightsIsNamed) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can become somebody without rights";
    }
    // Where others get through to the folder itself.
    const TemporaryFolder open_place(fs::temp_directory_path());
    fs::permissions(open_place.path(), fs::perms::all);
    const std::string path = open_place.path("büro");
    fs::copy(host_path(), path, fs::copy_options::recursive);
    fs::permissions(path, fs::perms::owner_all);
    const auto try_to_log_on = [&path] { make_object<Connector>()->Logon(path, "chef", ""); };
    in_child([&] {
        ASSERT_EQ(setgid(65534), 0);
        ASSERT_EQ(setuid(65534), 0);
        const AutomationError error = error_of(try_to_log_on);
        EXPECT_EQ(error.number(), number(HostError::NoRights));
        EXPECT_EQ(error.description(), "Die Datei corvanta.ini im Ordner '" + path +
                                           "' kann nicht gelesen werden: dafür fehlen die Rechte.");
    });
    fs::permissions(path, fs::perms::all);
    fs::permissions(path + "/corvanta.ini", fs::perms::all);
    in_child([&] {
        ASSERT_EQ(setgid(65534), 0);
        ASSERT_EQ(setuid(65534), 0);
        const AutomationError error = error_of(try_to_log_on);
        EXPECT_EQ(error.number(), number(HostError::NoRights));
        EXPECT_EQ(error.description(),
                  "Die Datenbank '" + path +
                      "/corvanta.db' kann nicht geöffnet oder geschrieben werden: dafür fehlen die "
                      "Rechte.");
    });
    fs::permissions(path + "/corvanta.db", fs::perms::group_read | fs::perms::others_read,
                    fs::perm_options::add);
    in_child([&] {
        ASSERT_EQ(setgid(65534), 0);
        ASSERT_EQ(setuid(65534), 0);
        EXPECT_EQ(error_of(try_to_log_on).number(), number(HostError::NoRights))
            << "a database that may only be read";
    });
}

TEST_F(Failing, FolderThatCannotBeMadeForWantOfRightsIsNamed) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can become somebody without rights";
    }
    in_child([this] {
        ASSERT_EQ(setuid(65534), 0);
        const AutomationError error = error_of([&] { create_folder(folder.path("neu")); });
        EXPECT_EQ(error.number(), number(HostError::NoRights));
    });
}

// A disk of 3 MB that only this process sees, where the system lets us mount one; else files of
// this process stay that small.
class SmallDisk {
  public:
    SmallDisk(std::string place, bool may_mount) : place_(std::move(place)) {
        fs::create_directory(place_);
        is_mounted_ = may_mount && unshare(CLONE_NEWNS) == 0 &&
                      mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                      mount("tmpfs", place_.c_str(), "tmpfs", 0, "size=3m") == 0;
    }
    void begin(rlim_t size_of_a_file) const {
        if (is_mounted_) {
            return;
        }
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = size_of_a_file;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    void make_room() const {
        if (is_mounted_) {
            EXPECT_EQ(mount("tmpfs", place_.c_str(), "tmpfs", MS_REMOUNT, "size=30m"), 0);
            return;
        }
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    [[nodiscard]] std::string path(const char* name) const { return place_ + "/" + name; }

  private:
    std::string place_;
    bool is_mounted_ = false;
};

class FullDisk : public Failing, public ::testing::WithParamInterface<bool> {
  protected:
    [[nodiscard]] SmallDisk small_disk() const { return {folder.path("platte"), GetParam()}; }
    // Runs a test in a copy of the office on a disk with little room left.
    template <class Test>
    void in_a_full_office(const Test& test) {
        in_child([&] {
            const SmallDisk disk = small_disk();
            const std::string path = disk.path("büro");
            fs::copy(host_path(), path, fs::copy_options::recursive);
            disk.begin(3'000'000);
            Connector own;
            own.Logon(path, "chef", "");
            test(own, disk, path);
        });
    }
};

TEST_P(FullDisk, TakesNoRoomForALargeSort) {
    in_a_full_office([](Connector& own, const SmallDisk&, const std::string&) {
        const RecordSet rs = own.GetRecordset(
            "WITH RECURSIVE row(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM row LIMIT 300000) "
            "SELECT i * 7919 % 400009 AS x, hex('0123456789012345678901234567890123456789') AS y "
            "FROM row ORDER BY x",
            {});
        EXPECT_FALSE(rs.at_end());
    });
}

TEST_P(FullDisk, TakesNothingByHalvesAndTheSessionGoesOn) {
    in_a_full_office([this](Connector& own, const SmallDisk& disk, const std::string& path) {
        const auto count = [&] {
            return own.GetRecordset("SELECT count(*) FROM AKT", {}).value_at(0);
        };
        const auto expect_full = [&](const std::function<void()>& write) {
            const AutomationError error = error_of(write);
            EXPECT_EQ(error.number(), number(HostError::DiskFull)) << error.description();
            EXPECT_EQ(error.description(), "Die Datenbank '" + path +
                                               "/corvanta.db' kann nicht geschrieben werden: der "
                                               "Datenträger ist voll.");
        };
        RecordSet rs = new_rows(own, 100, 50'000);
        expect_full([&] { own.UpdateRecordset(rs, {}); });
        EXPECT_EQ(count(), Variant(0));

        own.BeginTrans();
        expect_full([&] {
            own.UpdateRecordset(rs, {});
            own.CommitTrans();
        });
        own.RollbackTrans();
        EXPECT_EQ(count(), Variant(0));

        disk.make_room();
        RecordSet again = new_rows(own, 100, 50'000);
        own.UpdateRecordset(again, {});
        EXPECT_EQ(count(), Variant(100));
        EXPECT_EQ(check_folder(path, nothing_to_tell).problems, std::vector<std::string>());
    });
}

TEST_P(FullDisk, TakesNoNewFolder) {
    in_child([this] {
        const SmallDisk disk = small_disk();
        std::ofstream(disk.path("voll")) << std::string(2'500'000, 'x');
        disk.begin(500'000);
        const AutomationError error =
            error_of([&] { create_folder(disk.path("neu"), {.sample = true}); });
        EXPECT_EQ(error.number(), number(HostError::DiskFull)) << error.description();
        EXPECT_FALSE(fs::exists(disk.path("neu")));
    });
}

TEST_P(FullDisk, TakesNoBackup) {
    in_child([this] {
        const SmallDisk disk = small_disk();
        std::ofstream(disk.path("voll")) << std::string(2'500'000, 'x');
        disk.begin(500'000);
        const AutomationError error =
            error_of([&] { back_up(host_path(), disk.path("sicherung.tar"), nothing_to_tell); });
        EXPECT_EQ(error.number(), number(HostError::DiskFull)) << error.description();
        EXPECT_EQ(std::distance(fs::directory_iterator(disk.path("")), fs::directory_iterator()),
                  1);
    });
}

INSTANTIATE_TEST_SUITE_P(OfADisk, FullDisk, ::testing::Values(true));
INSTANTIATE_TEST_SUITE_P(OfALimit, FullDisk, ::testing::Values(false));

}  // namespace
}  // namespace cvdeveloper::standalone::testing
