#include <windows.h>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/owner_only.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::files {

// The system's lies in the user's profile, where nobody else may enter.
std::string temp_folder() {
    std::wstring folder(MAX_PATH + 1, L'\0');
    const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    if (length == 0 || length >= folder.size()) {
        raise_last_error("TEMP");
    }
    folder.resize(length);
    return std::string(paths::without_end_separators(to_utf8(folder)));
}

std::string new_temp_folder(std::string_view name) {
    OwnerOnly owner;
    const std::string base = paths::join(temp_folder(), name) + '-' +
                             std::to_string(GetCurrentProcessId()) + '-' +
                             std::to_string(GetTickCount64());
    for (int number = 0;; ++number) {
        std::string folder = base + '-' + std::to_string(number);
        if (CreateDirectoryW(native(folder).c_str(), owner.attributes()) != FALSE) {
            return folder;
        }
        if (GetLastError() != ERROR_ALREADY_EXISTS) {
            raise_last_error(folder);
        }
    }
}

}  // namespace cvdeveloper::files
