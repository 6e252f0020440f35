#pragma once

#include <cstdint>
#include <string_view>

#include "host/maintenance/progression.h"

namespace cvdeveloper::standalone {

// Writes everything of a host folder as it is at one moment into a new tar file: settings,
// pictures, database, attachments. Others go on working meanwhile. Only its owner may read the
// file. Gives its size. Errors: Folder where the file is there already or the folder is none;
// NoRights, DiskFull, Damaged, the runtime's file errors; no file is left then.
std::uint64_t back_up(std::string_view folder, std::string_view file, const Progression& progress);

// Makes a host folder from such a file, verified as check_folder does. Errors: Folder where the
// folder is there already and not empty; Damaged for a file that is no complete backup; nothing is
// left then.
void restore(std::string_view file, std::string_view folder, const Progression& progress);

}  // namespace cvdeveloper::standalone
