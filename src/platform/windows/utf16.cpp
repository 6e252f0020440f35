#include "platform/windows/utf16.h"

#include "platform/utf8.h"

namespace cvdeveloper {
namespace {

static_assert(sizeof(wchar_t) == 2);

constexpr char32_t replacement = 0xFFFD;

constexpr bool is_high(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool is_low(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr bool is_stray_byte(char32_t unit) {
    return unit >= 0xDC80 && unit <= 0xDCFF;
}

constexpr bool is_ascii(char32_t unit) {
    return unit < 0x80;
}

}  // namespace

std::wstring to_utf16(std::string_view text) {
    std::wstring units;
    units.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        if (is_ascii(static_cast<unsigned char>(text[position]))) {
            units += static_cast<wchar_t>(text[position++]);
            continue;
        }
        const utf8::Character character = utf8::decode(text, position);
        position += character.length;
        if (character.code >= 0x10000) {
            const char32_t rest = character.code - 0x10000;
            units += static_cast<wchar_t>(0xD800U + (rest >> 10U));
            units += static_cast<wchar_t>(0xDC00U + (rest & 0x3FFU));
        } else {
            units += static_cast<wchar_t>(character.code);
        }
    }
    return units;
}

std::string to_utf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        const char32_t unit = text[position];
        if (is_ascii(unit)) {
            bytes += static_cast<char>(unit);
        } else if (is_high(unit) && position + 1 < text.size() && is_low(text[position + 1])) {
            const char32_t low = text[++position];
            utf8::append(bytes, 0x10000 + ((unit - 0xD800) << 10U) + (low - 0xDC00));
        } else {
            const bool alone = (is_high(unit) || is_low(unit)) && !is_stray_byte(unit);
            utf8::append(bytes, alone ? replacement : unit);
        }
    }
    return bytes;
}

}  // namespace cvdeveloper
