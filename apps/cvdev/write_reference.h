#pragma once

#include <filesystem>
#include <span>

#include "cvdeveloper/automation/reference.h"

namespace cvdev {

// Makes the folder hold these pages: writes them and removes pages of topics that are gone. Files
// without the pages' mark are nobody's to remove.
void write_reference(const std::filesystem::path& folder,
                     std::span<const cvdeveloper::ReferencePage> pages);

}  // namespace cvdev
