#pragma once

struct sqlite3;

namespace cvdeveloper::standalone::sqlite {

// The system's error number behind the connection's last failure: of the file or its log, where
// one of them says that the disk is full or rights are missing.
int system_error_of(sqlite3* connection) noexcept;

}  // namespace cvdeveloper::standalone::sqlite
