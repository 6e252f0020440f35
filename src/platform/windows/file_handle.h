#pragma once

#include <windows.h>

#include <string_view>
#include <utility>

#include "platform/windows/file_errors.h"

namespace cvdeveloper::files {

// An open file or, with the flag for it, folder, closed with its owner. Others may read, write,
// rename and delete it meanwhile, as on every system of ours. Nothing where it did not open.
class FileHandle {
  public:
    FileHandle(std::string_view path, DWORD access, DWORD disposition,
               DWORD flags = FILE_FLAG_BACKUP_SEMANTICS, SECURITY_ATTRIBUTES* rights = nullptr)
        : handle_(CreateFileW(native(path).c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, rights,
                              disposition, flags, nullptr)) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() {
        if (*this) {
            CloseHandle(handle_);
        }
    }

    explicit operator bool() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const noexcept { return handle_; }
    [[nodiscard]] HANDLE release() noexcept { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

  private:
    HANDLE handle_;
};

}  // namespace cvdeveloper::files
