#pragma once

#include <string>

namespace cvdeveloper::standalone {

// A random key (version 4): 8-4-4-4-12 digits in capitals, without braces.
std::string new_key();

}  // namespace cvdeveloper::standalone
