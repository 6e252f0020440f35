#pragma once

#include <span>
#include <string>
#include <vector>

#include "cvdeveloper/automation/interface_table.h"
#include "cvdeveloper/enumerations.h"

namespace cvdeveloper {

struct ReferencePage {
    std::string file_name;  // "activities.md"
    std::string text;
};

// Stands at the top of every page; what does not begin with it is nobody's to overwrite.
extern const std::string_view reference_mark;

// The interface as Markdown: an index (README.md), the enumerations, and a page for each topic.
std::vector<ReferencePage> reference_pages(std::span<const InterfaceTable* const> classes,
                                           std::span<const Enumeration> enumerations);

}  // namespace cvdeveloper
