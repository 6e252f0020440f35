#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8, character by character. A byte that belongs to no character is read as U+DC00 plus the
// byte and written back as that byte, so that no text is damaged by passing through.
namespace cvdeveloper::utf8 {

struct Character {
    char32_t code = 0;
    std::size_t length = 0;  // in bytes
};

// The character that begins at a position inside the text.
Character decode(std::string_view text, std::size_t position) noexcept;
void append(std::string& text, char32_t code);

// One code for each character.
std::u32string characters(std::string_view text);

// The bytes that the first so many characters take up.
std::size_t prefix_length(std::string_view text, std::size_t count) noexcept;

}  // namespace cvdeveloper::utf8
