#include "terminal_progress.h"

#include "host/platform/terminal.h"

namespace cvdev {

namespace {

constexpr int error_output = 2;

}  // namespace

TerminalProgress::TerminalProgress(std::string_view what)
    : what_(what),
      is_terminal_(cvdeveloper::standalone::terminal::is_there(error_output)),
      bar_(error_output) {}

void TerminalProgress::operator()(std::string_view step, double share) {
    if (is_terminal_) {
        bar_.draw(what_ + ": " + std::string(step), share);
    }
}

}  // namespace cvdev
