#include "platform/windows/file_errors.h"

#include <windows.h>

#include <algorithm>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::files {
namespace {

RuntimeError runtime_error(DWORD system_error) {
    switch (system_error) {
        case ERROR_FILE_NOT_FOUND:
            return RuntimeError::FileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_DIRECTORY:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_CANT_RESOLVE_FILENAME:
            return RuntimeError::PathNotFound;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return RuntimeError::FileExists;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED:
        case ERROR_PRIVILEGE_NOT_HELD:
        case ERROR_CURRENT_DIRECTORY:
        case ERROR_BUSY:
            return RuntimeError::PermissionDenied;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_FILE_TOO_LARGE:
            return RuntimeError::DiskFull;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:
            return RuntimeError::BadFileName;
        default:
            return RuntimeError::PathFileAccess;
    }
}

// Beyond some 250 units the system takes only whole paths, spelt in its own way.
constexpr std::size_t longest_plain_path = 240;

std::wstring whole_path(const std::wstring& path) {
    std::wstring whole(static_cast<std::size_t>(MAX_PATH) + path.size(), L'\0');
    const DWORD length =
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
    if (length == 0 || length >= whole.size()) {
        return path;
    }
    whole.resize(length);
    if (whole.starts_with(L"\\\\?\\")) {
        return whole;
    }
    return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + whole.substr(2) : L"\\\\?\\" + whole;
}

}  // namespace

bool is_possible(std::string_view path) noexcept {
    return !path.empty() && path.find('\0') == std::string_view::npos;
}

std::wstring native(std::string_view path) {
    if (!is_possible(path)) {
        raise(RuntimeError::BadFileName, path.substr(0, path.find('\0')));
    }
    std::wstring text = to_utf16(path);
    std::ranges::replace(text, L'/', L'\\');
    return text.size() > longest_plain_path ? whole_path(text) : text;
}

void raise_file_error(std::uint32_t system_error, std::string_view path) {
    raise(runtime_error(system_error), path);
}

void raise_last_error(std::string_view path) {
    raise_file_error(GetLastError(), path);
}

}  // namespace cvdeveloper::files
