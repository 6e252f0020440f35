#include "host/folder/host_log.h"

#include <algorithm>
#include <exception>
#include <string>

#include "host/database/date_text.h"
#include "host/platform/open_file.h"
#include "host/platform/process.h"
#include "platform/clock.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

// A name with a line feed in it must not make two lines of one.
std::string one_line(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, ' ');
    return line;
}

}  // namespace

void HostLog::note(std::string_view event) const noexcept {
    try {
        const std::string line = date_text(now()).value_or("") + "  " + one_line(event) +
                                 " (Prozess " + std::to_string(process_number()) + ")\n";
        OpenFile(paths::to_text(file_), OpenFile::Mode::Append)
            .write({reinterpret_cast<const unsigned char*>(line.data()), line.size()});
    } catch (const std::exception&) {
        return;
    }
}

}  // namespace cvdeveloper::standalone
