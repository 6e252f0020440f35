#pragma once

#include <functional>
#include <string>

struct sqlite3;

namespace cvdeveloper::standalone::sqlite {

// Copies a database as it is now into a new file of the owner's alone. What progress() raises ends
// the copy. Errors: those of the disk, with the file's name; the file is gone then.
void backup_database(sqlite3* from, const std::string& path,
                     const std::function<void(double)>& progress);

}  // namespace cvdeveloper::standalone::sqlite
