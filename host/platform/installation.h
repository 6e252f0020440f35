#pragma once

#include <filesystem>
#include <optional>

namespace cvdeveloper::standalone {

// Where an installation keeps what new databases are made from: the folder that the variable
// CVDEVELOPER_SCHEMA names, else on Windows "schema" beside the program, elsewhere
// share/cvdeveloper/schema in the tree that it was installed into. Nothing where it runs from a
// build.
std::optional<std::filesystem::path> installed_schema();

}  // namespace cvdeveloper::standalone
