#pragma once

#include <span>
#include <string>

#include "cvdeveloper/automation/interface_table.h"
#include "cvdeveloper/enumerations.h"

namespace cvdeveloper {

// The interface as IDL text: enumerations, then each class as a dual interface with its operations
// in the order of their slots. What a type library is compiled from.
std::string idl_text(std::span<const InterfaceTable* const> classes,
                     std::span<const Enumeration> enumerations);

}  // namespace cvdeveloper
