#include "platform/case_mapping.h"

#include <windows.h>

namespace cvdeveloper {
namespace {

// The system's table for no language, which maps one character to one.
char32_t mapped(char32_t character, DWORD mapping) noexcept {
    wchar_t units[2] = {static_cast<wchar_t>(character)};
    int count = 1;
    if (character >= 0x10000) {
        units[0] = static_cast<wchar_t>(0xD800U + ((character - 0x10000) >> 10U));
        units[1] = static_cast<wchar_t>(0xDC00U + ((character - 0x10000) & 0x3FFU));
        count = 2;
    }
    wchar_t result[2] = {};
    const int length =
        LCMapStringEx(LOCALE_NAME_INVARIANT, mapping, units, count, result, 2, nullptr, nullptr, 0);
    if (length != count) {
        return character;
    }
    return count == 1 ? result[0]
                      : 0x10000 + ((static_cast<char32_t>(result[0]) - 0xD800) << 10U) +
                            (static_cast<char32_t>(result[1]) - 0xDC00);
}

}  // namespace

char32_t upper_case(char32_t character) noexcept {
    if (character < 0x80) {
        return character >= 'a' && character <= 'z' ? character - ('a' - 'A') : character;
    }
    return mapped(character, LCMAP_UPPERCASE);
}

char32_t lower_case(char32_t character) noexcept {
    if (character < 0x80) {
        return character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character;
    }
    return mapped(character, LCMAP_LOWERCASE);
}

}  // namespace cvdeveloper
