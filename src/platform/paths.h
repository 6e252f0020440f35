#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Path texts as callers write them: "\" and "/" both separate folders. Nothing here touches the
// disk.
namespace cvdeveloper::paths {

struct Parts {
    std::string_view folder;  // up to and with the last separator; "" where there is none
    std::string_view name;
};

bool ends_with_separator(std::string_view path) noexcept;
// Without the separators at its end; a root stays.
std::string_view without_end_separators(std::string_view path) noexcept;
Parts split(std::string_view path) noexcept;
// The folder's own way of separating goes on in what is joined to it.
std::string join(std::string_view folder, std::string_view name);

// The path for the standard library's files, which know only the system's own separators off
// Windows and no UTF-8 on it; and its text.
std::filesystem::path to_system(std::string_view path);
std::string to_text(const std::filesystem::path& path);

}  // namespace cvdeveloper::paths
