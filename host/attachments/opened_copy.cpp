#include "host/attachments/opened_copy.h"

#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

std::string file_name(std::string_view source) {
    const std::size_t folder = source.find_last_of("/\\");
    const std::string_view name =
        folder == std::string_view::npos ? source : source.substr(folder + 1);
    return name.empty() || name == "." || name == ".." ? "Anlage" : std::string(name);
}

}  // namespace

OpenedCopy::OpenedCopy(std::string_view source)
    : folder_(files::new_temp_folder("Anlage")), path_(paths::join(folder_, file_name(source))) {}

OpenedCopy::~OpenedCopy() {
    if (!is_kept_) {
        std::error_code ignored;
        std::filesystem::remove_all(paths::to_system(folder_), ignored);
    }
}

std::string OpenedCopy::keep() noexcept {
    is_kept_ = true;
    return path_;
}

}  // namespace cvdeveloper::standalone
