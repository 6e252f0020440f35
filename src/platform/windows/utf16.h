#pragma once

#include <string>
#include <string_view>

namespace cvdeveloper {

// The system's texts are UTF-16. A byte that belongs to no character becomes a lone surrogate and
// that byte again on the way back; any other lone surrogate comes in as U+FFFD.
std::wstring to_utf16(std::string_view text);
std::string to_utf8(std::wstring_view text);

}  // namespace cvdeveloper
