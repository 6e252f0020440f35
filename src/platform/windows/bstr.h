#pragma once

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <string>

#include "platform/windows/utf16.h"

namespace cvdeveloper {

struct BstrDeleter {
    void operator()(BSTR text) const noexcept { SysFreeString(text); }
};
using UniqueBstr = std::unique_ptr<OLECHAR, BstrDeleter>;

// The text of a function of the system, which is the caller's to free.
inline std::string take_text(BSTR text) {
    const UniqueBstr owned(text);
    return to_utf8({text, SysStringLen(text)});
}

}  // namespace cvdeveloper
