#include "platform/message_box.h"

#include <windows.h>

#include "platform/windows/utf16.h"

namespace cvdeveloper {

// In front of what the caller shows, and waited for.
void show_system_message(std::string_view text) {
    MessageBoxW(nullptr, to_utf16(text).c_str(), L"CVDeveloper",
                MB_OK | MB_TASKMODAL | MB_SETFOREGROUND);
}

}  // namespace cvdeveloper
