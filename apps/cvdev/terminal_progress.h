#pragma once

#include <string>
#include <string_view>

#include "host/services/progress_bar.h"

namespace cvdev {

// How far a command has come: a bar on standard error where that is a terminal, else nothing, since
// a backup at night has nothing to tell but its end. The bar goes with its owner.
class TerminalProgress {
  public:
    explicit TerminalProgress(std::string_view what);

    void operator()(std::string_view step, double share);
    // Before anything else is written to the terminal.
    void clear() noexcept { bar_.clear(); }

  private:
    std::string what_;
    bool is_terminal_;
    cvdeveloper::standalone::ProgressBar bar_;
};

}  // namespace cvdev
