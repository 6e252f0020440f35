#pragma once

#include <span>

#include "cvdeveloper/automation/interface_table.h"

namespace cvdeveloper {

// The interface tables of the library's public classes, for bindings and reference pages.
std::span<const InterfaceTable* const> public_classes();

// The same and those of the objects that operations hand out, which no caller creates.
std::span<const InterfaceTable* const> documented_classes();

}  // namespace cvdeveloper
