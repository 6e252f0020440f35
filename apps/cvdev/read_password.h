#pragma once

#include <string>

namespace cvdev {

// A new password: from a terminal twice and without an echo, else the first line of standard
// input. Errors: std::runtime_error where there is none, or the two differ.
std::string read_new_password();

}  // namespace cvdev
