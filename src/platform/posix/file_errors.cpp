#include "platform/posix/file_errors.h"

#include <algorithm>
#include <cerrno>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper::files {
namespace {

RuntimeError runtime_error(int system_error, std::string_view path) {
    switch (system_error) {
        case ENOENT: {
            const std::string_view folder =
                paths::split(paths::without_end_separators(path)).folder;
            return folder.empty() || folder_exists(folder) ? RuntimeError::FileNotFound
                                                           : RuntimeError::PathNotFound;
        }
        case ENOTDIR:
        case ELOOP:
            return RuntimeError::PathNotFound;
        case EEXIST:
            return RuntimeError::FileExists;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case ETXTBSY:
        case EBUSY:
            return RuntimeError::PermissionDenied;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return RuntimeError::DiskFull;
        case ENAMETOOLONG:
        case EINVAL:
            return RuntimeError::BadFileName;
        default:
            return RuntimeError::PathFileAccess;
    }
}

}  // namespace

bool is_possible(std::string_view path) noexcept {
    return !path.empty() && path.find('\0') == std::string_view::npos;
}

std::string native(std::string_view path) {
    if (!is_possible(path)) {
        raise(RuntimeError::BadFileName, path.substr(0, path.find('\0')));
    }
    std::string text(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

void raise_file_error(int system_error, std::string_view path) {
    raise(runtime_error(system_error, path), path);
}

}  // namespace cvdeveloper::files
