#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

namespace cvdeveloper::standalone {

// The host's own log, a file of the host folder for its owner alone: log-ons that failed, users
// and versions that were changed. Passwords never stand in it.
class HostLog {
  public:
    // A file that would grow beyond so many bytes is set aside as the old one, in place of the
    // last, and another begun; 0: never.
    HostLog(std::filesystem::path file, std::uint64_t largest_size)
        : file_(std::move(file)), largest_size_(largest_size) {}

    // Appends a line with the time and the process. A log that cannot be written keeps nobody from
    // working.
    void note(std::string_view event) const noexcept;

    // The name of the one that was set aside.
    static std::filesystem::path old_one_of(std::filesystem::path file);

  private:
    void append(std::string_view line) const;

    std::filesystem::path file_;
    std::uint64_t largest_size_;
};

}  // namespace cvdeveloper::standalone
