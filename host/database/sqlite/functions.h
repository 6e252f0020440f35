#pragma once

struct sqlite3;

namespace cvdeveloper::standalone::sqlite {

// The collation CVTEXT, LIKE in its sense, and the functions that callers' statements use beyond
// the database's own: RIGHT, LEFT, LEN, CONCAT, NOW; UPPER and LOWER for all letters.
void install_functions(sqlite3* connection);

}  // namespace cvdeveloper::standalone::sqlite
