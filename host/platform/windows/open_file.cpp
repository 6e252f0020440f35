#include "host/platform/open_file.h"

#include <algorithm>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/owner_only.h"

namespace cvdeveloper::standalone {

namespace {

using files::FileHandle;

// The system locks no folders, so a file in the folder stands for it. It stays there.
constexpr std::string_view lock_file = "belegt.lock";

FileHandle opened(std::string_view path, OpenFile::Mode mode) {
    switch (mode) {
        case OpenFile::Mode::CreateNew: {
            files::OwnerOnly owner;
            return {path, GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, owner.attributes()};
        }
        case OpenFile::Mode::Append: {
            files::OwnerOnly owner;
            // Only what may be read can be locked.
            return {path, FILE_APPEND_DATA | GENERIC_READ, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                    owner.attributes()};
        }
        case OpenFile::Mode::Folder:
            return {paths::join(path, lock_file), GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS,
                    FILE_ATTRIBUTE_HIDDEN};
        case OpenFile::Mode::Read:
            break;
    }
    return {path, GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL};
}

HANDLE handle_of(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

// Tenths of microseconds since 1601 as nanoseconds since 1970.
std::int64_t nanoseconds(std::int64_t ticks) {
    constexpr std::int64_t ticks_from_1601_to_1970 = 116'444'736'000'000'000;
    return (ticks - ticks_from_1601_to_1970) * 100;
}

std::uint64_t joined(DWORD high, DWORD low) {
    return (std::uint64_t{high} << 32U) | low;
}

bool lock(HANDLE handle, DWORD flags) {
    OVERLAPPED from_the_start{};
    return LockFileEx(handle, flags, 0, MAXDWORD, MAXDWORD, &from_the_start) != FALSE;
}

}  // namespace

OpenFile::OpenFile(std::string_view path, Mode mode) : path_(path) {
    // A folder does not open as a file: that is no matter of rights.
    if (mode == Mode::Read && files::folder_exists(path)) {
        raise(RuntimeError::PathFileAccess, path);
    }
    FileHandle file = opened(path, mode);
    if (!file) {
        const DWORD error = GetLastError();
        if (mode == Mode::Read && error == ERROR_PATH_NOT_FOUND) {
            raise(RuntimeError::FileNotFound, path);
        }
        files::raise_file_error(error, path);
    }
    if (mode == Mode::Read && GetFileType(file.get()) != FILE_TYPE_DISK) {
        raise(RuntimeError::PathFileAccess, path);
    }
    handle_ = reinterpret_cast<std::intptr_t>(file.release());
}

OpenFile::~OpenFile() {
    CloseHandle(handle_of(handle_));
}

std::size_t OpenFile::read(std::span<unsigned char> buffer) {
    constexpr std::size_t longest_piece = 1U << 30U;
    DWORD count = 0;
    if (ReadFile(handle_of(handle_), buffer.data(),
                 static_cast<DWORD>(std::min(buffer.size(), longest_piece)), &count,
                 nullptr) == FALSE) {
        files::raise_last_error(path_);
    }
    return count;
}

void OpenFile::write(std::span<const unsigned char> bytes) {
    constexpr std::size_t longest_piece = 1U << 30U;
    while (!bytes.empty()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size(), longest_piece));
        DWORD count = 0;
        if (WriteFile(handle_of(handle_), bytes.data(), size, &count, nullptr) == FALSE) {
            files::raise_last_error(path_);
        }
        bytes = bytes.subspan(count);
    }
}

// The system copies files by name only.
std::size_t OpenFile::copy_some(OpenFile& /*to*/, std::size_t /*size*/) noexcept {
    return 0;
}

// What is renamed is on the disk when that returns; a folder needs nothing more.
void OpenFile::sync() {
    if (FlushFileBuffers(handle_of(handle_)) == FALSE) {
        files::raise_last_error(path_);
    }
}

// The system has no such call; what matters is synced file by file.
void OpenFile::sync_file_system() {
    sync();
}

FileState OpenFile::state() const {
    BY_HANDLE_FILE_INFORMATION file{};
    FILE_BASIC_INFO times{};
    if (GetFileInformationByHandle(handle_of(handle_), &file) == FALSE ||
        GetFileInformationByHandleEx(handle_of(handle_), FileBasicInfo, &times, sizeof(times)) ==
            FALSE) {
        files::raise_last_error(path_);
    }
    return {.device = file.dwVolumeSerialNumber,
            .number = joined(file.nFileIndexHigh, file.nFileIndexLow),
            .size = joined(file.nFileSizeHigh, file.nFileSizeLow),
            .modified = nanoseconds(times.LastWriteTime.QuadPart),
            .changed = nanoseconds(times.ChangeTime.QuadPart)};
}

bool OpenFile::lock_shared() {
    const BlockingScope waiting;
    return lock(handle_of(handle_), 0);
}

bool OpenFile::try_lock_shared() {
    return lock(handle_of(handle_), LOCKFILE_FAIL_IMMEDIATELY);
}

bool OpenFile::lock_alone() {
    const BlockingScope waiting;
    return lock(handle_of(handle_), LOCKFILE_EXCLUSIVE_LOCK);
}

bool OpenFile::try_lock_alone() {
    return lock(handle_of(handle_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY);
}

// The system keeps its folders by itself.
void sync_folder(std::string_view /*path*/) {}

}  // namespace cvdeveloper::standalone
