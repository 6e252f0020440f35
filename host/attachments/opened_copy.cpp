#include "host/attachments/opened_copy.h"

#include <stdlib.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/posix/file_errors.h"

namespace cvdeveloper::standalone {

namespace {

std::string file_name(std::string_view source) {
    const std::size_t folder = source.find_last_of("/\\");
    const std::string_view name =
        folder == std::string_view::npos ? source : source.substr(folder + 1);
    return name.empty() || name == "." || name == ".." ? "Anlage" : std::string(name);
}

std::string new_folder() {
    std::string folder = files::temp_folder() + "/Anlage-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) {
        files::raise_file_error(errno, folder);
    }
    return folder;
}

}  // namespace

OpenedCopy::OpenedCopy(std::string_view source)
    : folder_(new_folder()), path_(folder_ + "/" + file_name(source)) {}

OpenedCopy::~OpenedCopy() {
    if (!is_kept_) {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
}

std::string OpenedCopy::keep() noexcept {
    is_kept_ = true;
    return path_;
}

}  // namespace cvdeveloper::standalone
