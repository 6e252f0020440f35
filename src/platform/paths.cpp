#include "platform/paths.h"

namespace cvdeveloper::paths {
namespace {

constexpr std::string_view separators = "\\/";

}  // namespace

bool ends_with_separator(std::string_view path) noexcept {
    return !path.empty() && separators.find(path.back()) != std::string_view::npos;
}

std::string_view without_end_separators(std::string_view path) noexcept {
    while (path.size() > 1 && ends_with_separator(path)) {
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
        const bool backslashes =
            path.find('\\') != std::string::npos && path.find('/') == std::string::npos;
        path += backslashes ? '\\' : '/';
    }
    return path.append(name);
}

}  // namespace cvdeveloper::paths
