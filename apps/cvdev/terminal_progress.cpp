#include "terminal_progress.h"

#include <unistd.h>

#include <iostream>

namespace cvdev {

TerminalProgress::TerminalProgress(std::string_view what)
    : what_(what), is_terminal_(isatty(STDERR_FILENO) != 0), bar_(STDERR_FILENO) {}

void TerminalProgress::operator()(std::string_view step, double share) {
    if (is_terminal_) {
        bar_.draw(what_ + ": " + std::string(step), share);
    } else if (step != step_) {
        step_ = step;
        std::cerr << what_ << ": " << step_ << std::endl;
    }
}

}  // namespace cvdev
