#include "platform/paths.h"

#include <algorithm>

namespace cvdeveloper::paths {
namespace {

constexpr std::string_view separators = "\\/";
constexpr auto own_separator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

bool ends_with_separator(std::string_view path) noexcept {
    return !path.empty() && separators.find(path.back()) != std::string_view::npos;
}

std::string_view without_end_separators(std::string_view path) noexcept {
    const std::size_t root = path.size() > 1 && path[1] == ':' ? 3 : 1;
    while (path.size() > root && ends_with_separator(path)) {
        path.remove_suffix(1);
    }
    return path;
}

Parts split(std::string_view path) noexcept {
    const std::size_t last = path.find_last_of(separators);
    const std::size_t name = last == std::string_view::npos ? 0 : last + 1;
    return {path.substr(0, name), path.substr(name)};
}

std::string join(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && !ends_with_separator(path)) {
        const bool backslashes = path.find('\\') != std::string::npos;
        const bool slashes = path.find('/') != std::string::npos;
        path += backslashes == slashes ? own_separator : backslashes ? '\\' : '/';
    }
    return path.append(name);
}

std::filesystem::path to_system(std::string_view path) {
    std::u8string text(path.begin(), path.end());
    if constexpr (own_separator == '/') {
        std::ranges::replace(text, u8'\\', u8'/');
    }
    return text;
}

std::string to_text(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace cvdeveloper::paths
