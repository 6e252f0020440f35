#include "host/folder/schema_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "host/errors.h"

namespace cvdeveloper::standalone {

std::filesystem::path schema_folder() {
    // An installation names its own place; a build runs from the source tree.
    if (const char* place = std::getenv("CVDEVELOPER_SCHEMA")) {
        return place;
    }
    return CVDEVELOPER_SCHEMA_FOLDER;
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
