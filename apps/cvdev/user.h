#pragma once

#include <span>
#include <string>

namespace cvdev {

// "user list FOLDER", "user add FOLDER NAME [--admin]", "user passwd FOLDER NAME", "user deactivate
// FOLDER NAME", "user activate FOLDER NAME". Passwords are never arguments: others could read them
// in the list of processes.
int user(std::span<const std::string> arguments);

}  // namespace cvdev
