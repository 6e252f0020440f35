#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/maintenance/progression.h"

namespace cvdeveloper::standalone {

struct CheckReport {
    std::vector<std::string> problems;  // a sentence each; none where all is well
    std::size_t tables = 0;
    std::int64_t rows = 0;
    std::int64_t attachments = 0;  // with content
};

// Verifies a host folder and changes nothing in it: the database's own structure, its schema,
// versions of rows, counters, the content of each attachment, rights of the files. Others may work
// meanwhile. Errors: Folder, NoRights, LockTimeout where nothing can be checked at all.
CheckReport check_folder(std::string_view path, const Progression& progress);

}  // namespace cvdeveloper::standalone
