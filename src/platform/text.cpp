#include "platform/text.h"

#include <algorithm>
#include <utility>

#include "platform/case_mapping.h"
#include "platform/utf8.h"

namespace cvdeveloper {
namespace {

constexpr std::size_t units_of(char32_t code) {
    return code >= 0x10000 ? 2 : 1;
}

bool is_ascii(char character) noexcept {
    return static_cast<unsigned char>(character) < 0x80;
}

// Most texts are names in ASCII; the rest begins with the first other character.
template <class AsciiMapping, class Mapping>
std::string mapped(std::string_view text, AsciiMapping map_ascii, Mapping mapping) {
    std::string result(text);
    std::size_t position = 0;
    for (; position < text.size() && is_ascii(text[position]); ++position) {
        result[position] = map_ascii(text[position]);
    }
    result.resize(position);
    while (position < text.size()) {
        const utf8::Character character = utf8::decode(text, position);
        utf8::append(result, mapping(character.code));
        position += character.length;
    }
    return result;
}

}  // namespace

std::size_t length_in_units(std::string_view text) noexcept {
    std::size_t units = 0;
    for (std::size_t position = 0; position < text.size();) {
        const utf8::Character character = utf8::decode(text, position);
        units += units_of(character.code);
        position += character.length;
    }
    return units;
}

std::string_view first_units(std::string_view text, std::size_t units) noexcept {
    if (text.size() <= units) {
        return text;  // no text has more units than bytes
    }
    std::size_t position = 0;
    while (position < text.size()) {
        const utf8::Character character = utf8::decode(text, position);
        if (units_of(character.code) > units) {
            break;
        }
        units -= units_of(character.code);
        position += character.length;
    }
    return text.substr(0, position);
}

std::string upper_case(std::string_view text) {
    return mapped(
        text, [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; },
        [](char32_t code) { return upper_case(code); });
}

std::string lower_case(std::string_view text) {
    return mapped(
        text, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; },
        [](char32_t code) { return lower_case(code); });
}

bool equal_ignoring_case(std::string_view left, std::string_view right) {
    std::size_t at_left = 0;
    std::size_t at_right = 0;
    while (at_left < left.size() && at_right < right.size()) {
        if (left[at_left] == right[at_right] && is_ascii(left[at_left])) {
            ++at_left;
            ++at_right;
            continue;
        }
        const utf8::Character one = utf8::decode(left, at_left);
        const utf8::Character other = utf8::decode(right, at_right);
        if (upper_case(one.code) != upper_case(other.code)) {
            return false;
        }
        at_left += one.length;
        at_right += other.length;
    }
    return at_left == left.size() && at_right == right.size();
}

std::string_view trim_blanks(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string joined(std::initializer_list<std::string_view> pieces) {
    std::size_t size = 0;
    for (const std::string_view piece : pieces) {
        size += piece.size();
    }
    std::string text(size, '\0');
    char* place = text.data();
    for (const std::string_view piece : pieces) {
        place = std::copy(piece.begin(), piece.end(), place);
    }
    return text;
}

std::string replace_all(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) {
        return std::string(text);
    }
    std::string result;
    std::size_t position = 0;
    for (;;) {
        const std::size_t found = text.find(what, position);
        result.append(text.substr(position, found - position));
        if (found == std::string_view::npos) {
            return result;
        }
        result.append(with);
        position = found + what.size();
    }
}

std::string take_first(std::string& list, std::string_view delimiter) {
    const std::size_t found = list.find(delimiter);
    if (found == std::string::npos) {
        return std::exchange(list, {});
    }
    std::string first = list.substr(0, found);
    list.erase(0, found + delimiter.size());
    return first;
}

}  // namespace cvdeveloper
