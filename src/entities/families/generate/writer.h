#pragma once

#include <string>

// Writes the families' C++ operations, declarations and bodies, from their rows.
namespace cvdeveloper::families {

std::string written_header();   // include/cvdeveloper/entities/families.h
std::string written_members();  // src/entities/families.cpp

}  // namespace cvdeveloper::families
