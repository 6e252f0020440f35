#include "cvdeveloper/tools/directory_search.h"

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/wildcards.h"

namespace cvdeveloper {
namespace {

constexpr std::int32_t with_hidden = 2;
constexpr std::int32_t with_folders = 16;

bool is_wanted(std::string_view name, files::Kind kind, std::int32_t attributes) {
    const bool hidden = name.starts_with('.');
    return kind != files::Kind::Nothing &&
           (kind == files::Kind::File || (attributes & with_folders) != 0) &&
           (!hidden || (attributes & with_hidden) != 0);
}

}  // namespace

void DirectorySearch::start(std::string_view path, std::int32_t attributes) {
    names_.clear();
    position_ = 0;
    const paths::Parts parts = paths::split(path);
    const std::string_view pattern = parts.name.empty() ? "*" : parts.name;
    const std::string_view folder = parts.folder.empty() ? "." : parts.folder;
    if (!has_wildcards(pattern)) {
        if (is_wanted(pattern, files::kind_of(path), attributes)) {
            names_.emplace_back(pattern);
        }
        return;
    }
    if (!files::folder_exists(folder)) {
        return;
    }
    // A search for folders begins with the folder itself and the one it lies in.
    if ((attributes & with_folders) != 0) {
        for (const std::string_view name : {".", ".."}) {
            if (matches_wildcards(name, pattern)) {
                names_.emplace_back(name);
            }
        }
    }
    for (files::Entry& entry : files::entries(folder)) {
        if (is_wanted(entry.name, entry.kind, attributes) &&
            matches_wildcards(entry.name, pattern)) {
            names_.push_back(std::move(entry.name));
        }
    }
}

std::string DirectorySearch::next() {
    return position_ < names_.size() ? names_[position_++] : std::string();
}

}  // namespace cvdeveloper
