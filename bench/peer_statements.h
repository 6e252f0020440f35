#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the hand-written peers have in common: prepared statements of the SQLite C interface.
namespace cvdeveloper::bench {

void check(int result, sqlite3* database);

using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Statement prepare(sqlite3* database, const char* text);
void bind(sqlite3_stmt* statement, int place, std::string_view text);
// Runs to the end and copies every value of the rows, as a client-side record set would.
std::vector<std::string> run(sqlite3* database, const Statement& statement);

std::string new_key();
// The log line of an empty result.
void append_line(const std::string& file, const std::string& message);

}  // namespace cvdeveloper::bench
