#include "host/database/sqlite/system_error.h"

#include <sqlite3.h>

#include "host/errors.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

bool says_why(int system_error) noexcept {
    return is_disk_full(system_error) || is_missing_right(system_error);
}

}  // namespace

// The connection's own number is overwritten by whatever it does to clean up.
int system_error_of(sqlite3* connection) noexcept {
    const int last = sqlite3_system_errno(connection);
    if (says_why(last)) {
        return last;
    }
    int of_file = 0;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_LAST_ERRNO, &of_file);
    if (says_why(of_file)) {
        return of_file;
    }
    sqlite3_file* log = nullptr;
    int of_log = 0;
    if (sqlite3_file_control(connection, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log) == SQLITE_OK &&
        log != nullptr && log->pMethods != nullptr) {
        log->pMethods->xFileControl(log, SQLITE_FCNTL_LAST_ERRNO, &of_log);
    }
    return says_why(of_log) ? of_log : last;
}

}  // namespace cvdeveloper::standalone::sqlite
