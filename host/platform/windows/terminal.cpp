#include "host/platform/terminal.h"

#include <windows.h>

#include <io.h>

#include "platform/windows/utf16.h"

namespace cvdeveloper::standalone::terminal {

namespace {

HANDLE console(int descriptor) noexcept {
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

}  // namespace

// Consoles before Windows 10 know no control sequences and count as none.
bool is_there(int descriptor) noexcept {
    constexpr DWORD control_sequences = 0x0004;
    DWORD mode = 0;
    return _isatty(descriptor) != 0 && GetConsoleMode(console(descriptor), &mode) != FALSE &&
           ((mode & control_sequences) != 0 ||
            SetConsoleMode(console(descriptor), mode | control_sequences) != FALSE);
}

std::size_t width(int descriptor) noexcept {
    CONSOLE_SCREEN_BUFFER_INFO information{};
    const bool is_known = GetConsoleScreenBufferInfo(console(descriptor), &information) != FALSE &&
                          information.dwSize.X > 0;
    return is_known ? static_cast<std::size_t>(information.dwSize.X) : 80;
}

void write(int descriptor, std::string_view text) noexcept {
    try {
        const std::wstring units = to_utf16(text);
        DWORD written = 0;
        WriteConsoleW(console(descriptor), units.data(), static_cast<DWORD>(units.size()), &written,
                      nullptr);
    } catch (const std::bad_alloc&) {
        return;
    }
}

}  // namespace cvdeveloper::standalone::terminal
