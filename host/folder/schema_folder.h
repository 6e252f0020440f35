#pragma once

#include <filesystem>
#include <string>

namespace cvdeveloper::standalone {

// The folder of schema.sql, base, sample and upgrades: CVDEVELOPER_SCHEMA where that is set, else
// the one installed with this program, else the source tree's.
std::filesystem::path schema_folder();

// Errors: Folder where the file is missing.
std::string read_schema_file(const std::filesystem::path& file);

}  // namespace cvdeveloper::standalone
