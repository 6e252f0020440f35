#pragma once

#include <windows.h>

#include <string>

#include "cvdeveloper/automation/idl.h"

namespace cvdeveloper::com {

// As the system writes it: in braces.
inline std::wstring braced(Identifier id) {
    return L"{" + std::wstring(id.begin(), id.end()) + L"}";
}

inline GUID identifier(Identifier id) {
    GUID made{};
    CLSIDFromString(braced(id).c_str(), &made);
    return made;
}

}  // namespace cvdeveloper::com
