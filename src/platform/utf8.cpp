#include "platform/utf8.h"

#include <array>

namespace cvdeveloper::utf8 {
namespace {

constexpr char32_t stray_byte = 0xDC00;

constexpr bool is_continuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

struct Form {
    unsigned char mask;
    unsigned char lead;
    std::size_t length;
    char32_t smallest;  // anything below has a shorter form
};
constexpr std::array<Form, 3> forms{
    {{0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

}  // namespace

Character decode(std::string_view text, std::size_t position) noexcept {
    const auto first = static_cast<unsigned char>(text[position]);
    if (first < 0x80) {
        return {first, 1};
    }
    const Character stray{stray_byte + first, 1};
    for (const Form& form : forms) {
        if ((first & form.mask) != form.lead) {
            continue;
        }
        if (text.size() - position < form.length) {
            return stray;
        }
        char32_t code = first & static_cast<unsigned char>(~form.mask);
        for (std::size_t i = 1; i < form.length; ++i) {
            const auto next = static_cast<unsigned char>(text[position + i]);
            if (!is_continuation(next)) {
                return stray;
            }
            code = (code << 6U) | (next & 0x3FU);
        }
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        if (code < form.smallest || code > 0x10FFFF || surrogate) {
            return stray;
        }
        return {code, form.length};
    }
    return stray;
}

void append(std::string& text, char32_t code) {
    const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        put(code);
    } else if (code >= stray_byte + 0x80 && code <= stray_byte + 0xFF) {
        put(code - stray_byte);
    } else if (code < 0x800) {
        put(0xC0U | (code >> 6U));
        put(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
        put(0xE0U | (code >> 12U));
        put(0x80U | ((code >> 6U) & 0x3FU));
        put(0x80U | (code & 0x3FU));
    } else {
        put(0xF0U | (code >> 18U));
        put(0x80U | ((code >> 12U) & 0x3FU));
        put(0x80U | ((code >> 6U) & 0x3FU));
        put(0x80U | (code & 0x3FU));
    }
}

std::u32string characters(std::string_view text) {
    std::u32string codes;
    codes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const Character character = decode(text, position);
        codes.push_back(character.code);
        position += character.length;
    }
    return codes;
}

std::size_t prefix_length(std::string_view text, std::size_t count) noexcept {
    std::size_t position = 0;
    for (; count > 0 && position < text.size(); --count) {
        position += decode(text, position).length;
    }
    return position;
}

}  // namespace cvdeveloper::utf8
