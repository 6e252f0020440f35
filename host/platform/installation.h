#pragma once

#include <filesystem>
#include <optional>

namespace cvdeveloper::standalone {

// Where an installation keeps what new databases are made from: the folder that the variable
// CVDEVELOPER_SCHEMA names, or on Windows the folder "schema" beside the program.
std::optional<std::filesystem::path> installed_schema();

}  // namespace cvdeveloper::standalone
