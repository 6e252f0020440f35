#pragma once

#include <span>
#include <string>

namespace cvdev {

// "check FOLDER": exit code 1 where something is wrong.
int check(std::span<const std::string> arguments);
// "backup FOLDER FILE"
int backup(std::span<const std::string> arguments);
// "restore FILE FOLDER"
int restore(std::span<const std::string> arguments);

}  // namespace cvdev
