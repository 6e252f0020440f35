#include "host/platform/open_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/posix/file_errors.h"

namespace cvdeveloper::standalone {

namespace {

constexpr unsigned owner_only = 0600;

int flags_of(OpenFile::Mode mode) {
    switch (mode) {
        case OpenFile::Mode::Read:
            return O_RDONLY | O_NONBLOCK;  // a pipe without a writer must not hang
        case OpenFile::Mode::CreateNew:
            return O_WRONLY | O_CREAT | O_EXCL;
        case OpenFile::Mode::Append:
            return O_WRONLY | O_CREAT | O_APPEND;
        case OpenFile::Mode::Folder:
            return O_RDONLY | O_DIRECTORY;
    }
    return O_RDONLY;
}

std::int64_t nanoseconds(const timespec& time) {
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

struct stat status_of(int descriptor, std::string_view path) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) {
        files::raise_file_error(errno, path);
    }
    return status;
}

bool lock(int descriptor, int operation) {
    while (flock(descriptor, operation) != 0) {
        if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

int descriptor_of(std::intptr_t handle) {
    return static_cast<int>(handle);
}

}  // namespace

OpenFile::OpenFile(std::string_view path, Mode mode)
    : path_(path),
      handle_(open(files::native(path).c_str(), flags_of(mode) | O_CLOEXEC, owner_only)) {
    if (descriptor_of(handle_) < 0) {
        if (mode == Mode::Read && (errno == ENOENT || errno == ENOTDIR)) {
            raise(RuntimeError::FileNotFound, path);
        }
        files::raise_file_error(errno, path);
    }
    if (mode == Mode::Read) {
        struct stat status {};
        if (fstat(descriptor_of(handle_), &status) != 0 || !S_ISREG(status.st_mode)) {
            close(descriptor_of(handle_));
            raise(RuntimeError::PathFileAccess, path);
        }
    }
}

OpenFile::~OpenFile() {
    close(descriptor_of(handle_));
}

std::size_t OpenFile::read(std::span<unsigned char> buffer) {
    for (;;) {
        const ssize_t count = ::read(descriptor_of(handle_), buffer.data(), buffer.size());
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR) {
            files::raise_file_error(errno, path_);
        }
    }
}

void OpenFile::write(std::span<const unsigned char> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor_of(handle_), bytes.data(), bytes.size());
        if (count >= 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            files::raise_file_error(errno, path_);
        }
    }
}

std::size_t OpenFile::copy_some(OpenFile& to, std::size_t size) noexcept {
    const ssize_t count = copy_file_range(descriptor_of(handle_), nullptr,
                                          descriptor_of(to.handle_), nullptr, size, 0);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

void OpenFile::sync() {
    while (fsync(descriptor_of(handle_)) != 0) {
        if (errno != EINTR) {
            files::raise_file_error(errno, path_);
        }
    }
}

void OpenFile::sync_file_system() {
    if (syncfs(descriptor_of(handle_)) != 0) {
        files::raise_file_error(errno, path_);
    }
}

FileState OpenFile::state() const {
    const struct stat status = status_of(descriptor_of(handle_), path_);
    return {.device = status.st_dev,
            .number = status.st_ino,
            .size = static_cast<std::uint64_t>(status.st_size),
            .modified = nanoseconds(status.st_mtim),
            .changed = nanoseconds(status.st_ctim)};
}

bool OpenFile::lock_shared() {
    const BlockingScope waiting;
    return lock(descriptor_of(handle_), LOCK_SH);
}

bool OpenFile::try_lock_shared() {
    return lock(descriptor_of(handle_), LOCK_SH | LOCK_NB);
}

bool OpenFile::lock_alone() {
    const BlockingScope waiting;
    return lock(descriptor_of(handle_), LOCK_EX);
}

bool OpenFile::try_lock_alone() {
    return lock(descriptor_of(handle_), LOCK_EX | LOCK_NB);
}

void sync_folder(std::string_view path) {
    OpenFile(path, OpenFile::Mode::Folder).sync();
}

}  // namespace cvdeveloper::standalone
