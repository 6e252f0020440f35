#pragma once

#include <string>
#include <string_view>

namespace cvdeveloper::standalone {

// One line of a terminal that is drawn over and over. Anything else than a terminal gets nothing.
class ProgressBar {
  public:
    explicit ProgressBar(int descriptor) noexcept : descriptor_(descriptor) {}
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() { clear(); }

    // The share is from 0 to 1. Writes only where the line changes.
    void draw(std::string_view text, double share);
    void clear() noexcept;

  private:
    int descriptor_;
    std::string drawn_;
};

}  // namespace cvdeveloper::standalone
