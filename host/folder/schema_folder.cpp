#include "host/folder/schema_folder.h"

#include <fstream>
#include <iterator>

#include "host/errors.h"
#include "host/platform/installation.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

std::filesystem::path schema_folder() {
    // An installation has its own place; a build runs from the source tree.
    return installed_schema().value_or(CVDEVELOPER_SCHEMA_FOLDER);
}

std::string read_schema_file(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        raise(HostError::Folder, "Die Datei '" + paths::to_text(file) +
                                     "', aus der neue Datenbanken entstehen, fehlt.");
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace cvdeveloper::standalone
