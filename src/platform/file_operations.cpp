#include "platform/file_operations.h"

#include <algorithm>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/wildcards.h"

namespace cvdeveloper::files {
namespace {

void check_given(std::string_view path) {
    if (path.empty()) {
        raise(RuntimeError::InvalidCall);
    }
}

// A target is one name; wildcards have no meaning there.
void check_target(std::string_view path) {
    check_given(path);
    if (has_wildcards(paths::split(paths::without_end_separators(path)).name)) {
        raise(RuntimeError::BadFileName, path);
    }
}

std::vector<std::string> named(std::string_view path, Kind kind) {
    check_given(path);
    const std::string_view plain = paths::without_end_separators(path);
    const paths::Parts parts = paths::split(plain);
    const RuntimeError missing =
        kind == Kind::File ? RuntimeError::FileNotFound : RuntimeError::PathNotFound;
    const std::string_view folder = parts.folder.empty() ? "." : parts.folder;
    if (!folder_exists(folder)) {
        raise(RuntimeError::PathNotFound, path);
    }

    std::vector<std::string> found;
    if (!has_wildcards(parts.name)) {
        if (kind_of(plain) == kind) {
            found.emplace_back(plain);
        }
    } else {
        for (const Entry& entry : entries(folder)) {
            if (entry.kind == kind && matches_wildcards(entry.name, parts.name)) {
                found.push_back(paths::join(parts.folder, entry.name));
            }
        }
    }
    if (found.empty()) {
        raise(missing, path);
    }
    return found;
}

// Where each source goes.
class Target {
  public:
    Target(std::string_view source, std::string_view target)
        : path_(target),
          into_(paths::ends_with_separator(target) ||
                has_wildcards(paths::split(paths::without_end_separators(source)).name)) {
        check_target(target);
        if (into_ && !folder_exists(target)) {
            raise(RuntimeError::PathNotFound, target);
        }
    }

    [[nodiscard]] std::string of(std::string_view source) const {
        return into_ ? paths::join(path_, paths::split(source).name) : std::string(path_);
    }

  private:
    std::string_view path_;
    bool into_;
};

void copy_tree(std::string_view from, std::string_view to, bool overwrite) {
    if (!folder_exists(to)) {
        create_folder(to);
    }
    for (const Entry& entry : entries(from)) {
        const std::string source = paths::join(from, entry.name);
        const std::string target = paths::join(to, entry.name);
        if (is_link(source)) {
            // A link that leads into its own tree would never come to an end.
            if (overwrite && is_link(target)) {
                remove_file(target);
            }
            copy_link(source, target);
        } else if (entry.kind == Kind::Folder) {
            copy_tree(source, target, overwrite);
        } else {
            copy_file(source, target, overwrite);
        }
    }
}

void copy_anything(std::string_view from, std::string_view to) {
    if (is_link(from)) {
        copy_link(from, to);
    } else if (folder_exists(from)) {
        copy_tree(from, to, false);
    } else {
        copy_file(from, to, false);
    }
}

void remove_anything(std::string_view path) {
    if (!is_link(path) && folder_exists(path)) {
        remove_folder(path);
    } else {
        remove_file(path);
    }
}

}  // namespace

std::vector<std::string> files_named(std::string_view path) {
    return named(path, Kind::File);
}

std::vector<std::string> folders_named(std::string_view path) {
    return named(path, Kind::Folder);
}

void copy_files(std::string_view source, std::string_view target, bool overwrite) {
    const std::vector<std::string> sources = files_named(source);
    const Target place(source, target);
    for (const std::string& file : sources) {
        const std::string copy = place.of(file);
        if (folder_exists(copy)) {
            raise(RuntimeError::PermissionDenied, copy);
        }
        copy_file(file, copy, overwrite);
    }
}

void copy_folders(std::string_view source, std::string_view target, bool overwrite) {
    const std::vector<std::string> sources = folders_named(source);
    const Target place(source, target);
    for (const std::string& folder : sources) {
        const std::string copy = place.of(folder);
        if (file_exists(copy)) {
            raise(RuntimeError::FileExists, copy);
        }
        if (is_inside(copy, folder)) {
            raise(RuntimeError::PermissionDenied, copy);
        }
        copy_tree(folder, copy, overwrite);
    }
}

void move_files(std::string_view source, std::string_view target) {
    const std::vector<std::string> sources = files_named(source);
    const Target place(source, target);
    for (const std::string& file : sources) {
        move(file, place.of(file));
    }
}

void move_folders(std::string_view source, std::string_view target) {
    const std::vector<std::string> sources = folders_named(source);
    const Target place(source, target);
    for (const std::string& folder : sources) {
        move(folder, place.of(folder));
    }
}

void move(std::string_view from, std::string_view to) {
    if (!rename(from, to)) {
        copy_anything(from, to);
        remove_anything(from);
    }
}

void remove_files(std::string_view path) {
    for (const std::string& file : files_named(path)) {
        remove_file(file);
    }
}

void remove_folders(std::string_view path) {
    // No name means a root.
    if (!path.empty() && paths::split(paths::without_end_separators(path)).name.empty()) {
        raise(RuntimeError::PermissionDenied, path);
    }
    for (const std::string& folder : folders_named(path)) {
        remove_folder(folder);
    }
}

bool append_line(std::string_view path, std::string_view line) {
    try {
        OutputFile file(path, OutputFile::Mode::Append);
        return append_line(file, line);
    } catch (const AutomationError&) {
        return false;
    }
}

bool append_line(OutputFile& file, std::string_view line) {
    try {
        file.write(to_code_page(line).append("\r\n"));
        return true;
    } catch (const AutomationError&) {
        return false;
    }
}

double total_size(std::string_view folder) {
    double size = 0;
    for (const Entry& entry : entries(folder)) {
        const std::string path = paths::join(folder, entry.name);
        if (is_link(path)) {
            continue;
        }
        size += entry.kind == Kind::Folder ? total_size(path)
                                           : static_cast<double>(properties(path).size);
    }
    return size;
}

}  // namespace cvdeveloper::files
