#include "host/services/progress_bar.h"

#include <algorithm>
#include <cmath>

#include "host/platform/terminal.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

constexpr std::string_view start_of_line = "\r\x1b[K";  // and the line wiped out

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
    if (!terminal::is_there(descriptor_)) {
        return;
    }
    constexpr std::size_t around_the_bar = 8;
    constexpr std::size_t blank_and_cursor = 2;  // in the last column it would wrap
    const std::size_t width = std::max<std::size_t>(terminal::width(descriptor_), 20);
    const std::size_t length = std::min<std::size_t>(30, width / 3);
    const std::string label = printable(text);
    std::string line(first_units(label, width - length - around_the_bar - blank_and_cursor));
    line += (line.empty() ? "" : " ") + bar(std::clamp(share, 0.0, 1.0), length);
    if (line != drawn_) {
        terminal::write(descriptor_, std::string(start_of_line) + line);
        drawn_ = std::move(line);
    }
}

void ProgressBar::clear() noexcept {
    if (!drawn_.empty()) {
        terminal::write(descriptor_, start_of_line);
        drawn_.clear();
    }
}

}  // namespace cvdeveloper::standalone
