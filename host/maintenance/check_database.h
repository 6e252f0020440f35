#pragma once

#include <string>
#include <vector>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// What each of these finds is added to the problems, a sentence each.
using Problems = std::vector<std::string>;

// Pages, indexes and required values, as the database itself verifies them.
void check_structure(Database& database, Problems& problems);
// Tables, columns and indexes against those of a new database.
void check_schema(Database& database, Problems& problems);
// Keys and versions of all rows; their number.
std::int64_t check_rows(Database& database, Problems& problems);
// No counter may be behind a number that a record has.
void check_counters(Database& database, Problems& problems);

}  // namespace cvdeveloper::standalone
