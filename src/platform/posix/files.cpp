#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/clock.h"
#include "platform/paths.h"
#include "platform/posix/file_errors.h"

namespace cvdeveloper::files {
namespace {

namespace fs = std::filesystem;

Kind kind_of(const fs::file_status& status) {
    if (!fs::exists(status)) {
        return Kind::Nothing;
    }
    return fs::is_directory(status) ? Kind::Folder : Kind::File;
}

void check(const std::error_code& error, std::string_view path) {
    if (error) {
        raise_file_error(error.value(), path);
    }
}

Date local_time(const struct statx_timestamp& stamp) {
    return local_date(std::chrono::sys_seconds(std::chrono::seconds(stamp.tv_sec)));
}

}  // namespace

Kind kind_of(std::string_view path) {
    if (!is_possible(path)) {
        return Kind::Nothing;
    }
    std::error_code error;
    return kind_of(fs::status(native(path), error));
}

bool file_exists(std::string_view path) {
    return kind_of(path) == Kind::File;
}

bool folder_exists(std::string_view path) {
    return kind_of(path) == Kind::Folder;
}

std::vector<Entry> entries(std::string_view folder) {
    std::vector<Entry> list;
    std::error_code error;
    fs::directory_iterator iterator(native(folder), error);
    while (!error && iterator != fs::directory_iterator()) {
        std::error_code unreadable;
        list.push_back(
            {iterator->path().filename().string(), kind_of(iterator->status(unreadable))});
        iterator.increment(error);
    }
    if (error == std::errc::no_such_file_or_directory) {
        raise(RuntimeError::PathNotFound, folder);
    }
    check(error, folder);
    return list;
}

Properties properties(std::string_view path) {
    struct statx status {};
    if (statx(AT_FDCWD, native(path).c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0) {
        raise_file_error(errno, path);
    }
    const bool has_birth = (status.stx_mask & STATX_BTIME) != 0;
    return {.size = status.stx_size,
            .created = local_time(has_birth ? status.stx_btime : status.stx_mtime),
            .modified = local_time(status.stx_mtime)};
}

void create_folder(std::string_view path) {
    if (mkdir(native(path).c_str(), 0777) == 0) {
        return;
    }
    if (errno == ENOENT) {
        raise(RuntimeError::PathNotFound, path);
    }
    raise_file_error(errno, path);
}

void copy_file(std::string_view from, std::string_view to, bool overwrite) {
    const fs::path source = native(from);
    const fs::path target = native(to);
    std::error_code error;
    const bool new_file = !fs::exists(fs::symlink_status(target, error));
    fs::copy_file(source, target,
                  overwrite ? fs::copy_options::overwrite_existing : fs::copy_options::none, error);
    if (error) {
        std::error_code ignored;
        if (new_file && error != std::errc::file_exists) {
            fs::remove(target, ignored);
        }
        const bool source_missing = !fs::exists(source, ignored);
        raise_file_error(error.value(), source_missing ? from : to);
    }
    fs::last_write_time(target, fs::last_write_time(source, error), error);
}

void copy_link(std::string_view from, std::string_view to) {
    std::error_code error;
    fs::copy_symlink(native(from), native(to), error);
    check(error, to);
}

bool is_link(std::string_view path) {
    std::error_code error;
    return fs::is_symlink(native(path), error);
}

bool rename(std::string_view from, std::string_view to) {
    const fs::path source = native(from);
    const fs::path target = native(to);
    std::error_code error;
    if (fs::exists(fs::symlink_status(target, error))) {
        raise(RuntimeError::FileExists, to);
    }
    fs::rename(source, target, error);
    if (error == std::errc::cross_device_link) {
        return false;
    }
    // Into itself, or into a folder that is not there.
    if (error == std::errc::invalid_argument) {
        raise(RuntimeError::PermissionDenied, to);
    }
    check(error, fs::exists(fs::symlink_status(source)) ? to : from);
    return true;
}

void remove_file(std::string_view path) {
    if (unlink(native(path).c_str()) != 0) {
        raise_file_error(errno, path);
    }
}

void remove_folder(std::string_view path) {
    std::error_code error;
    fs::remove_all(native(path), error);
    check(error, path);
}

bool is_hidden(std::string_view path) {
    return paths::split(paths::without_end_separators(path)).name.starts_with('.');
}

bool is_inside(std::string_view inner, std::string_view outer) {
    std::error_code error;
    const fs::path inside = fs::weakly_canonical(native(inner), error);
    const fs::path outside = fs::weakly_canonical(native(outer), error);
    const auto [end, unused] =
        std::mismatch(outside.begin(), outside.end(), inside.begin(), inside.end());
    return end == outside.end();
}

std::string temp_folder() {
    const char* given = std::getenv("TMPDIR");
    if (given != nullptr && folder_exists(given)) {
        return given;
    }
    std::string folder = "/tmp/cvdeveloper-" + std::to_string(geteuid());
    if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) {
        raise_file_error(errno, folder);
    }
    // Somebody else may have made it first, or a link in its place.
    struct stat status {};
    const bool own = lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
                     status.st_uid == geteuid() && (status.st_mode & 0077U) == 0;
    if (!own) {
        raise(RuntimeError::PermissionDenied, folder);
    }
    return folder;
}

std::string new_temp_folder(std::string_view name) {
    std::string folder = paths::join(temp_folder(), name).append("-XXXXXX");
    if (mkdtemp(folder.data()) == nullptr) {
        raise_file_error(errno, folder);
    }
    return folder;
}

void restrict_to_owner(std::string_view path) {
    constexpr mode_t of_folder = 0700;
    constexpr mode_t of_file = 0600;
    if (chmod(native(path).c_str(), folder_exists(path) ? of_folder : of_file) != 0) {
        raise_file_error(errno, path);
    }
}

}  // namespace cvdeveloper::files
