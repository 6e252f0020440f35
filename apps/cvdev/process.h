#pragma once

#include <string>
#include <vector>

namespace cvdev {

// The words behind the program's name, and a standard output that takes UTF-8.
std::vector<std::string> start(int count, char** values);

}  // namespace cvdev
