#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/files.h"
#include "platform/posix/file_errors.h"

namespace cvdeveloper::files {
namespace {

constexpr unsigned rights_before_umask = 0666;

int flags_of(OutputFile::Mode mode) {
    switch (mode) {
        case OutputFile::Mode::CreateNew:
            return O_CREAT | O_EXCL;
        case OutputFile::Mode::Overwrite:
            return O_CREAT | O_TRUNC;
        case OutputFile::Mode::Append:
            return O_CREAT | O_APPEND;
    }
    return 0;
}

// An open file that is closed with its owner.
class Descriptor {
  public:
    Descriptor(std::string_view path, int flags)
        : number_(open(native(path).c_str(), flags | O_CLOEXEC, rights_before_umask)) {
        if (number_ < 0) {
            raise_file_error(errno, path);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(number_); }

    [[nodiscard]] int number() const noexcept { return number_; }

  private:
    int number_;
};

}  // namespace

std::string read_text(std::string_view path) {
    const Descriptor file(path, O_RDONLY);
    std::string text;
    std::array<char, 65'536> buffer{};
    for (;;) {
        const ssize_t count = read(file.number(), buffer.data(), buffer.size());
        if (count > 0) {
            text.append(buffer.data(), static_cast<std::size_t>(count));
        } else if (count == 0) {
            return text;
        } else if (errno != EINTR) {
            raise_file_error(errno, path);
        }
    }
}

OutputFile::OutputFile(std::string_view path, Mode mode)
    : path_(path),
      handle_(
          open(native(path).c_str(), O_WRONLY | O_CLOEXEC | flags_of(mode), rights_before_umask)) {
    if (handle_ < 0) {
        raise_file_error(errno, path);
    }
}

std::optional<OutputFile> OutputFile::existing(std::string_view path) {
    if (!is_possible(path)) {
        return std::nullopt;
    }
    const int opened = open(native(path).c_str(), O_WRONLY | O_CLOEXEC | O_APPEND);
    return opened < 0 ? std::nullopt
                      : std::optional(OutputFile(path, static_cast<std::intptr_t>(opened)));
}

OutputFile::~OutputFile() {
    if (handle_ != closed) {
        close(static_cast<int>(handle_));
    }
}

void OutputFile::write(std::string_view text) {
    const auto descriptor = static_cast<int>(handle_);
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            raise_file_error(errno, path_);
        }
    }
}

}  // namespace cvdeveloper::files
