#include "host/folder/host_log.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <string>
#include <system_error>
#include <thread>

#include "cvdeveloper/automation/class_registry.h"
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

// Others have it for the time of a line. Whoever has it longer has been stopped, and must not stop
// everybody.
bool lock_soon(OpenFile& file) {
    if (file.try_lock_alone()) {
        return true;
    }
    constexpr int most_attempts = 1000;
    const BlockingScope waiting;
    for (int attempt = 1; attempt < most_attempts; ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (file.try_lock_alone()) {
            return true;
        }
    }
    return false;
}

// Whether the name leads to another file by now: somebody has set the open one aside.
bool is_set_aside(const FileState& open, const std::string& path) {
    const FileState named = OpenFile(path, OpenFile::Mode::Append).state();
    return open.device != named.device || open.number != named.number;
}

}  // namespace

std::filesystem::path HostLog::old_one_of(std::filesystem::path file) {
    return file += ".alt";
}

// Who writes has the file locked, so that no line goes to one that is being replaced.
void HostLog::append(std::string_view line) const {
    const std::string path = paths::to_text(file_);
    for (;;) {
        OpenFile file(path, OpenFile::Mode::Append);
        if (largest_size_ != 0 && lock_soon(file)) {
            const FileState state = file.state();
            if (is_set_aside(state, path)) {
                continue;
            }
            std::error_code error;
            if (state.size != 0 && state.size + line.size() > largest_size_) {
                std::filesystem::rename(file_, old_one_of(file_), error);
                if (!error) {
                    continue;
                }
            }
        }
        file.write({reinterpret_cast<const unsigned char*>(line.data()), line.size()});
        return;
    }
}

void HostLog::note(std::string_view event) const noexcept {
    try {
        append(date_text(now()).value_or("") + "  " + one_line(event) + " (Prozess " +
               std::to_string(process_number()) + ")\n");
    } catch (const std::exception&) {
        return;
    }
}

}  // namespace cvdeveloper::standalone
