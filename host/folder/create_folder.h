#pragma once

#include <string>
#include <string_view>

#include "host/maintenance/progression.h"

namespace cvdeveloper::standalone {

struct CreateOptions {
    bool sample = false;        // an invented office to try things out on
    std::string user = "chef";  // one active administrator
    std::string password = {};
    Progression progress = nothing_to_tell;  // of the sample data
};

// Makes a host folder that only its owner may enter. Errors: Folder where the folder holds a
// database already; nothing is changed then. What fails halfway leaves nothing behind.
void create_folder(std::string_view path, const CreateOptions& options = {});

}  // namespace cvdeveloper::standalone
