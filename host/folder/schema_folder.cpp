#include "host/folder/schema_folder.h"

#include <dlfcn.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

#include "host/errors.h"

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
fs::path installed_folder() {
    for (fs::path place = loaded_from().parent_path(); place.has_relative_path();
         place = place.parent_path()) {
        const fs::path schema = place / "share" / "cvdeveloper" / "schema";
        if (std::error_code ignored; fs::exists(schema / "schema.sql", ignored)) {
            return schema;
        }
    }
    return {};
}

}  // namespace

std::filesystem::path schema_folder() {
    if (const char* place = std::getenv("CVDEVELOPER_SCHEMA"); place != nullptr && *place != '\0') {
        return place;
    }
    static const fs::path installed = installed_folder();
    return installed.empty() ? fs::path(CVDEVELOPER_SCHEMA_FOLDER) : installed;
}

std::string read_schema_file(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        raise(HostError::Folder,
              "Die Datei '" + file.string() + "', aus der neue Datenbanken entstehen, fehlt.");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace cvdeveloper::standalone
