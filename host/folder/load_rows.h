#pragma once

#include <filesystem>

#include "host/database/database.h"
#include "host/maintenance/progression.h"

namespace cvdeveloper::standalone {

// Loads every CSV file of a folder into the table of its name. A row whose key is there already
// replaces that row whole. progress() is told each table. Errors: Folder with file and line for a
// row that does not fit.
void load_rows(Database& database, const std::filesystem::path& folder,
               const Progression& progress);

}  // namespace cvdeveloper::standalone
