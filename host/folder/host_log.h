#pragma once

#include <filesystem>
#include <string_view>
#include <utility>

namespace cvdeveloper::standalone {

// The host's own log, a file of the host folder for its owner alone: log-ons that failed, users
// and versions that were changed. Passwords never stand in it.
class HostLog {
  public:
    explicit HostLog(std::filesystem::path file) : file_(std::move(file)) {}

    // Appends a line with the time and the process. A log that cannot be written keeps nobody from
    // working.
    void note(std::string_view event) const noexcept;

  private:
    std::filesystem::path file_;
};

}  // namespace cvdeveloper::standalone
