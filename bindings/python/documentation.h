#pragma once

#include <string>

#include "cvdeveloper/automation/interface_table.h"

namespace cvdeveloper::python {

// What help() shows below the signature: what the operation does, its arguments, result, errors,
// tables, an example.
std::string documentation(const Operation& operation);

}  // namespace cvdeveloper::python
