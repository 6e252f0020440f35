#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// An attachment whose content lies in the attachment folder.
struct StoredAttachment {
    std::string key;
    std::string stored_name;
    std::uint64_t size = 0;
    std::string sha256;
};
std::vector<StoredAttachment> stored_attachments(Database& database);

}  // namespace cvdeveloper::standalone
