#include "host/services/progress_bar.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>

#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

constexpr std::string_view start_of_line = "\r\x1b[K";  // and the line wiped out

std::size_t width_of(int terminal) {
    winsize size{};
    const bool is_known = ioctl(terminal, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return is_known ? size.ws_col : 80;
}

// A terminal that takes no more loses a line of progress, nothing else.
void write_all(int descriptor, std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t count = write(descriptor, text.data(), text.size());
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return;
        }
    }
}

// Control characters would move the cursor out of the line.
std::string printable(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, ' ');
    return line;
}

// "[########                ]  33 %"
std::string bar(double share, std::size_t length) {
    const auto filled = static_cast<std::size_t>(std::lround(share * static_cast<double>(length)));
    const std::string percent = std::to_string(static_cast<int>(share * 100));
    return "[" + std::string(filled, '#') + std::string(length - filled, ' ') + "] " +
           std::string(3 - percent.size(), ' ') + percent + " %";
}

}  // namespace

void ProgressBar::draw(std::string_view text, double share) {
    if (isatty(descriptor_) == 0) {
        return;
    }
    constexpr std::size_t around_the_bar = 8;
    constexpr std::size_t blank_and_cursor = 2;  // in the last column it would wrap
    const std::size_t width = std::max<std::size_t>(width_of(descriptor_), 20);
    const std::size_t length = std::min<std::size_t>(30, width / 3);
    const std::string label = printable(text);
    std::string line(first_units(label, width - length - around_the_bar - blank_and_cursor));
    line += (line.empty() ? "" : " ") + bar(std::clamp(share, 0.0, 1.0), length);
    if (line != drawn_) {
        write_all(descriptor_, std::string(start_of_line) + line);
        drawn_ = std::move(line);
    }
}

void ProgressBar::clear() noexcept {
    if (!drawn_.empty()) {
        write_all(descriptor_, start_of_line);
        drawn_.clear();
    }
}

}  // namespace cvdeveloper::standalone
