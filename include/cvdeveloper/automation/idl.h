#pragma once

#include <span>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/interface_table.h"
#include "cvdeveloper/enumerations.h"

namespace cvdeveloper {

// As IDL writes it: "a6cebe76-dc2b-48fa-8170-3b2580349cec".
using Identifier = std::string_view;

// The ids by which the system knows a class and its interface.
struct ClassIds {
    std::string_view name;
    Identifier interface_id;
    Identifier class_id;
};

struct LibraryIds {
    std::string_view name;
    std::string_view version;
    std::string_view help;
    Identifier library_id;
    std::span<const ClassIds> classes;
};

// The interface as IDL text: enumerations, then each class as a dual interface with its operations
// in the order of their slots. What a type library is compiled from. Errors: std::invalid_argument
// for a class that has no ids.
std::string idl_text(const LibraryIds& library, std::span<const InterfaceTable* const> classes,
                     std::span<const Enumeration> enumerations);

}  // namespace cvdeveloper
