#pragma once

#include <string>
#include <string_view>

namespace cvdeveloper::standalone {

// A place for a copy of an attachment: the name of its source, in a temporary folder of its own
// that only its owner may enter. Goes again unless it is kept.
class OpenedCopy {
  public:
    explicit OpenedCopy(std::string_view source);
    OpenedCopy(const OpenedCopy&) = delete;
    OpenedCopy& operator=(const OpenedCopy&) = delete;
    ~OpenedCopy();

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    // Leaves the copy to the caller; its path.
    std::string keep() noexcept;

  private:
    std::string folder_;
    std::string path_;
    bool is_kept_ = false;
};

}  // namespace cvdeveloper::standalone
