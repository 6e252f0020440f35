#include "host/platform/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>

namespace cvdeveloper::standalone::terminal {

bool is_there(int descriptor) noexcept {
    return isatty(descriptor) != 0;
}

std::size_t width(int descriptor) noexcept {
    winsize size{};
    const bool is_known = ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return is_known ? size.ws_col : 80;
}

void write(int descriptor, std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return;
        }
    }
}

}  // namespace cvdeveloper::standalone::terminal
