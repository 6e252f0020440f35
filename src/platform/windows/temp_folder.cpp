#include <windows.h>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/windows/file_errors.h"
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

}  // namespace cvdeveloper::files
