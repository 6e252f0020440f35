#include "host/platform/installation.h"

#include <cstdlib>

namespace cvdeveloper::standalone {

std::optional<std::filesystem::path> installed_schema() {
    if (const char* place = std::getenv("CVDEVELOPER_SCHEMA")) {
        return place;
    }
    return std::nullopt;
}

}  // namespace cvdeveloper::standalone
