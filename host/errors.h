#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cvdeveloper::standalone {

// The stand-alone host's own errors. The small numbers and those of the database range are the
// ones scripts know from record sets and database providers.
enum class HostError : std::int32_t {
    NoCurrentRow = 3021,             // reading or writing before the first or after the last row
    NotUpdatable = 3251,             // a record set that no table can take back
    UnknownField = 3265,             // a name or position that the record set does not have
    Closed = 3704,                   // a record set or connector that is not open
    StatementRefused = -2147217900,  // what the database or the host does not run
    ValueRefused = -2147217887,      // too long, not of the column's type, null where none may be
    LockTimeout = -2147217871,       // somebody else held the database longer than the time-out
    RowChanged = -2147217864,        // somebody else changed or deleted the row in between
    LogonFailed = -2147217843,
    StatementTooLong = -2147217842,  // a reading statement ran longer than the settings allow
    Transaction = -2147168242,       // a transaction begun twice, or ended without being begun
    Folder = -2147217865,            // no host folder, or one that cannot be used
    NoRights = -2147024891,          // folder or file may not be read or written
    DiskFull = -2147024784,
    Damaged = -2147023504,   // the database file, an attachment or a backup
    Database = -2147467259,  // any other failure of disk or system
};

[[noreturn]] void raise(HostError error, std::string description);

// What an error number of the system means.
bool is_disk_full(int system_error) noexcept;
bool is_missing_right(int system_error) noexcept;
// DiskFull, NoRights or, for anything else, Folder: "what: the system's reason."
[[noreturn]] void raise_system_failure(int system_error, const std::string& what);

// 'text', as messages quote names and paths.
std::string in_quotes(std::string_view text);

// The beginning of a statement, as error texts quote it.
std::string_view quoted_part(std::string_view statement) noexcept;

}  // namespace cvdeveloper::standalone
