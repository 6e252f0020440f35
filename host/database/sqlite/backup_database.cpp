#include "host/database/sqlite/backup_database.h"

#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>

#include "cvdeveloper/automation/class_registry.h"
#include "host/database/sqlite/system_error.h"
#include "host/errors.h"
#include "host/platform/open_file.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

// Enough to keep the calls cheap, few enough to show progress and to be stopped soon.
constexpr int pages_of_a_step = 512;

struct Close {
    void operator()(sqlite3* connection) const noexcept { sqlite3_close_v2(connection); }
};
struct Finish {
    void operator()(sqlite3_backup* backup) const noexcept { sqlite3_backup_finish(backup); }
};

[[noreturn]] void raise_failure(sqlite3* to, int code, const std::string& path) {
    const int system_error = system_error_of(to);
    const std::string file = "Die Kopie der Datenbank " + in_quotes(path);
    if ((code & 0xFF) == SQLITE_FULL || is_disk_full(system_error)) {
        raise(HostError::DiskFull,
              file + " kann nicht geschrieben werden: der Datenträger ist voll.");
    }
    if ((code & 0xFF) == SQLITE_CORRUPT || (code & 0xFF) == SQLITE_NOTADB) {
        raise(HostError::Damaged,
              file + " kann nicht gemacht werden: die Datenbank ist beschädigt.");
    }
    raise(is_missing_right(system_error) ? HostError::NoRights : HostError::Database,
          file + " kann nicht geschrieben werden: " + sqlite3_errstr(code) + ".");
}

void copy(sqlite3* from, const std::string& path, const std::function<void(double)>& progress) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, Close> to(opened);
    if (code != SQLITE_OK) {
        raise_failure(opened, code, path);
    }
    std::unique_ptr<sqlite3_backup, Finish> backup(
        sqlite3_backup_init(opened, "main", from, "main"));
    if (backup == nullptr) {
        raise_failure(opened, sqlite3_extended_errcode(opened), path);
    }
    const BlockingScope copying;
    int result = SQLITE_OK;
    while (result == SQLITE_OK) {
        result = sqlite3_backup_step(backup.get(), pages_of_a_step);
        const int pages = std::max(sqlite3_backup_pagecount(backup.get()), 1);
        progress(1.0 - static_cast<double>(sqlite3_backup_remaining(backup.get())) / pages);
    }
    if (result != SQLITE_DONE) {
        raise_failure(opened, result, path);
    }
}

}  // namespace

void backup_database(sqlite3* from, const std::string& path,
                     const std::function<void(double)>& progress) {
    // Made by us, so that it is the owner's from its first byte on.
    { const OpenFile made(path, OpenFile::Mode::CreateNew); }
    try {
        copy(from, path, progress);
    } catch (...) {
        for (const char* part : {"", "-journal", "-wal", "-shm"}) {
            std::error_code ignored;
            std::filesystem::remove(path + part, ignored);
        }
        throw;
    }
}

}  // namespace cvdeveloper::standalone::sqlite
