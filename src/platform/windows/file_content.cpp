#include <windows.h>

#include <algorithm>
#include <array>

#include "platform/files.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/file_handle.h"

namespace cvdeveloper::files {
namespace {

// Writes of a file opened for appending only go to its end, whoever else writes.
DWORD access_of(OutputFile::Mode mode) {
    return mode == OutputFile::Mode::Append ? FILE_APPEND_DATA | SYNCHRONIZE : GENERIC_WRITE;
}

DWORD disposition_of(OutputFile::Mode mode) {
    switch (mode) {
        case OutputFile::Mode::CreateNew:
            return CREATE_NEW;
        case OutputFile::Mode::Overwrite:
            return CREATE_ALWAYS;
        case OutputFile::Mode::Append:
            return OPEN_ALWAYS;
    }
    return OPEN_EXISTING;
}

}  // namespace

std::string read_text(std::string_view path) {
    const FileHandle file(path, GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    if (!file) {
        raise_last_error(path);
    }
    std::string text;
    std::array<char, 65'536> buffer{};
    for (;;) {
        DWORD count = 0;
        if (ReadFile(file.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count,
                     nullptr) == FALSE) {
            raise_last_error(path);
        }
        if (count == 0) {
            return text;
        }
        text.append(buffer.data(), count);
    }
}

OutputFile::OutputFile(std::string_view path, Mode mode)
    : path_(path),
      handle_(reinterpret_cast<std::intptr_t>(

          FileHandle(path, access_of(mode), disposition_of(mode), FILE_ATTRIBUTE_NORMAL)
              .release())) {
    if (handle_ == reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE)) {
        raise_last_error(path);
    }
}

std::optional<OutputFile> OutputFile::existing(std::string_view path) {
    if (!is_possible(path)) {
        return std::nullopt;
    }
    FileHandle opened(path, access_of(Mode::Append), OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    return opened
               ? std::optional(OutputFile(path, reinterpret_cast<std::intptr_t>(opened.release())))
               : std::nullopt;
}

OutputFile::~OutputFile() {
    if (handle_ != closed) {
        CloseHandle(reinterpret_cast<HANDLE>(handle_));
    }
}

void OutputFile::write(std::string_view text) {
    constexpr std::size_t longest_piece = 1U << 30U;
    while (!text.empty()) {
        const auto size = static_cast<DWORD>(std::min(text.size(), longest_piece));
        DWORD count = 0;
        if (WriteFile(reinterpret_cast<HANDLE>(handle_), text.data(), size, &count, nullptr) ==
            FALSE) {
            raise_last_error(path_);
        }
        text.remove_prefix(count);
    }
}

}  // namespace cvdeveloper::files
