#include "host/platform/installation.h"

#include <dlfcn.h>

#include <cstdlib>
#include <string_view>
#include <system_error>

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;

// The file that this code was loaded from: the program, or the Python module.
fs::path loaded_from() {
    Dl_info info{};
    std::error_code error;
    if (dladdr(reinterpret_cast<const void*>(&loaded_from), &info) != 0 &&
        std::string_view(info.dli_fname).find('/') != std::string_view::npos) {
        if (fs::path file = fs::canonical(info.dli_fname, error); !error) {
            return file;
        }
    }
    // A program that was found by the shell knows itself by its bare name only.
    return fs::read_symlink("/proc/self/exe", error);
}

// share/cvdeveloper/schema beside bin/, lib/ and whatever lies deeper.
std::optional<fs::path> find_schema() {
    for (fs::path place = loaded_from().parent_path(); place.has_relative_path();
         place = place.parent_path()) {
        fs::path schema = place / "share" / "cvdeveloper" / "schema";
        if (std::error_code ignored; fs::exists(schema / "schema.sql", ignored)) {
            return schema;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::filesystem::path> installed_schema() {
    if (const char* place = std::getenv("CVDEVELOPER_SCHEMA"); place != nullptr && *place != '\0') {
        return place;
    }
    static const std::optional<fs::path> installed = find_schema();
    return installed;
}

}  // namespace cvdeveloper::standalone
