#include "cvdeveloper/tools/directory_search.h"

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/wildcards.h"

namespace cvdeveloper {
namespace {

constexpr std::int32_t with_hidden = 2;
constexpr std::int32_t with_folders = 16;

bool is_wanted(std::string_view path, files::Kind kind, std::int32_t attributes) {
    return kind != files::Kind::Nothing &&
           (kind == files::Kind::File || (attributes & with_folders) != 0) &&
           ((attributes & with_hidden) != 0 || !files::is_hidden(path));
}

}  // namespace

void DirectorySearch::start(std::string_view path, std::int32_t attributes) {
    names_.clear();
    position_ = 0;
    const paths::Parts parts = paths::split(path);
    const std::string_view pattern = parts.name.empty() ? "*" : parts.name;
    const std::string_view folder = parts.folder.empty() ? "." : parts.folder;
    if (!has_wildcards(pattern)) {
        if (is_wanted(path, files::kind_of(path), attributes)) {
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
        if (matches_wildcards(entry.name, pattern) &&
            is_wanted(paths::join(parts.folder, entry.name), entry.kind, attributes)) {
            names_.push_back(std::move(entry.name));
        }
    }
}

std::string DirectorySearch::next() {
    return position_ < names_.size() ? names_[position_++] : std::string();
}

}  // namespace cvdeveloper
