#include "platform/files.h"

#include <windows.h>

#include <chrono>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/clock.h"
#include "platform/paths.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/file_handle.h"

namespace cvdeveloper::files {
namespace {

using std::chrono::sys_seconds;

bool has(DWORD attributes, DWORD attribute) {
    return (attributes & attribute) != 0;
}

DWORD attributes_of(std::string_view path) {
    return is_possible(path) ? GetFileAttributesW(native(path).c_str()) : INVALID_FILE_ATTRIBUTES;
}

std::uint64_t joined(DWORD high, DWORD low) {
    return (std::uint64_t{high} << 32U) | low;
}

// The system counts tenths of microseconds since 1601.
Date local_time(const FILETIME& time) {
    constexpr std::int64_t seconds_from_1601_to_1970 = 11'644'473'600;
    const auto ticks = static_cast<std::int64_t>(joined(time.dwHighDateTime, time.dwLowDateTime));
    return local_date(
        sys_seconds(std::chrono::seconds(ticks / 10'000'000 - seconds_from_1601_to_1970)));
}

}  // namespace

Kind kind_of(std::string_view path) {
    DWORD attributes = attributes_of(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return Kind::Nothing;
    }
    if (has(attributes, FILE_ATTRIBUTE_REPARSE_POINT)) {
        const FileHandle target(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
        BY_HANDLE_FILE_INFORMATION information{};
        if (!target || GetFileInformationByHandle(target.get(), &information) == FALSE) {
            return Kind::Nothing;
        }
        attributes = information.dwFileAttributes;
    }
    return has(attributes, FILE_ATTRIBUTE_DIRECTORY) ? Kind::Folder : Kind::File;
}

bool file_exists(std::string_view path) {
    return kind_of(path) == Kind::File;
}

bool folder_exists(std::string_view path) {
    return kind_of(path) == Kind::Folder;
}

Properties properties(std::string_view path) {
    const FileHandle file(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    BY_HANDLE_FILE_INFORMATION information{};
    if (!file || GetFileInformationByHandle(file.get(), &information) == FALSE) {
        raise_last_error(path);
    }
    return {.size = joined(information.nFileSizeHigh, information.nFileSizeLow),
            .created = local_time(information.ftCreationTime),
            .modified = local_time(information.ftLastWriteTime)};
}

void create_folder(std::string_view path) {
    if (CreateDirectoryW(native(path).c_str(), nullptr) == FALSE) {
        const DWORD error = GetLastError();
        raise_file_error(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, path);
    }
}

void copy_file(std::string_view from, std::string_view to, bool overwrite) {
    if (CopyFileW(native(from).c_str(), native(to).c_str(), overwrite ? FALSE : TRUE) == FALSE) {
        const DWORD error = GetLastError();
        raise_file_error(error, file_exists(from) ? to : from);
    }
}

// A new folder made after a link is a link to the same place.
void copy_link(std::string_view from, std::string_view to) {
    const std::wstring source = native(from);
    const std::wstring target = native(to);
    const BOOL copied = has(attributes_of(from), FILE_ATTRIBUTE_DIRECTORY)
                            ? CreateDirectoryExW(source.c_str(), target.c_str(), nullptr)
                            : CopyFileExW(source.c_str(), target.c_str(), nullptr, nullptr, nullptr,
                                          COPY_FILE_COPY_SYMLINK | COPY_FILE_FAIL_IF_EXISTS);
    if (copied == FALSE) {
        raise_last_error(to);
    }
}

// Other reparse points, such as files that lie in a cloud, are what they look like.
bool is_link(std::string_view path) {
    if (!is_possible(path)) {
        return false;
    }
    WIN32_FIND_DATAW found{};
    const std::wstring text = native(paths::without_end_separators(path));
    const HANDLE search = FindFirstFileW(text.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return false;
    }
    FindClose(search);
    return has(found.dwFileAttributes, FILE_ATTRIBUTE_REPARSE_POINT) &&
           IsReparseTagNameSurrogate(found.dwReserved0);
}

bool is_hidden(std::string_view path) {
    const DWORD attributes = attributes_of(path);
    return attributes != INVALID_FILE_ATTRIBUTES && has(attributes, FILE_ATTRIBUTE_HIDDEN);
}

bool rename(std::string_view from, std::string_view to) {
    if (MoveFileExW(native(from).c_str(), native(to).c_str(), MOVEFILE_WRITE_THROUGH) != FALSE) {
        return true;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_NOT_SAME_DEVICE) {
        return false;
    }
    if (attributes_of(from) == INVALID_FILE_ATTRIBUTES) {
        raise_file_error(error, from);
    }
    // Into itself.
    raise_file_error(error == ERROR_INVALID_PARAMETER ? ERROR_ACCESS_DENIED : error, to);
}

void remove_file(std::string_view path) {
    const std::wstring text = native(path);
    const bool is_folder_link = has(attributes_of(path), FILE_ATTRIBUTE_DIRECTORY) && is_link(path);
    if ((is_folder_link ? RemoveDirectoryW(text.c_str()) : DeleteFileW(text.c_str())) == FALSE) {
        raise_last_error(path);
    }
}

}  // namespace cvdeveloper::files
