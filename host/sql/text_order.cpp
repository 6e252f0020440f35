#include "host/sql/text_order.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "platform/utf8.h"

namespace cvdeveloper::standalone::sql {

namespace {

// The small letter of a character: Latin, Greek and Cyrillic, one to one.
constexpr char32_t fold(char32_t code) noexcept {
    if (code < 0x80) {
        return code >= 'A' && code <= 'Z' ? code + 0x20 : code;
    }
    if ((code >= 0xC0 && code <= 0xDE && code != 0xD7) || (code >= 0x391 && code <= 0x3A9) ||
        (code >= 0x410 && code <= 0x42F)) {
        return code + 0x20;
    }
    if (code >= 0x400 && code <= 0x40F) {
        return code + 0x50;
    }
    if (code == 0x178) {
        return 0xFF;
    }
    if (code == 0x1E9E) {
        return 0xDF;
    }
    const bool even_is_capital =
        (code >= 0x100 && code <= 0x137 && code != 0x130) || (code >= 0x14A && code <= 0x177);
    const bool odd_is_capital =
        (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
    if (even_is_capital) {
        return code | 1U;
    }
    return odd_is_capital && code % 2 == 1 ? code + 1 : code;
}

// Base letters of the small letters from U+00E0 to U+017F; a blank stands for "is its own".
constexpr std::string_view latin_1_bases = "aaaaaaaceeeeiiii nooooo ouuuuy y";
constexpr std::string_view latin_a_bases =
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllllllln"
    "nnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";

constexpr char32_t base_of(char32_t folded) noexcept {
    if (folded < 0xDF || folded > 0x17F) {
        return folded;
    }
    if (folded == 0xDF) {
        return 's';
    }
    const char base = folded < 0x100 ? latin_1_bases[folded - 0xE0] : latin_a_bases[folded - 0x100];
    return base == ' ' ? folded : static_cast<char32_t>(base);
}
static_assert(latin_1_bases.size() == 0x20 && latin_a_bases.size() == 0x80);
static_assert(base_of(U'ä') == 'a' && base_of(U'ö') == 'o' && base_of(U'ü') == 'u' &&
              base_of(U'ÿ') == 'y' && base_of(U'ž') == 'z' && base_of(U'ł') == 'l');

// fold() of every ASCII character, for the common case.
constexpr std::array<std::uint8_t, 128> ascii_folded = [] {
    std::array<std::uint8_t, 128> table{};
    for (char32_t code = 0; code < 128; ++code) {
        table[code] = static_cast<std::uint8_t>(fold(code));
    }
    return table;
}();

constexpr bool is_ascii(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x80;
}

// No part of a longer character, and no blank, which may be one of those at the end.
constexpr bool decides(char c) noexcept {
    return is_ascii(c) && c != ' ';
}

inline std::string_view without_trailing_blanks(std::string_view text) noexcept {
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

// Reads a text folded, character by character.
class Folded {
  public:
    explicit Folded(std::string_view text) noexcept : text_(text) {}
    [[nodiscard]] bool at_end() const noexcept { return at_ == text_.size(); }
    char32_t next() noexcept {
        const auto byte = static_cast<unsigned char>(text_[at_]);
        if (byte < 0x80) {
            ++at_;
            return ascii_folded[byte];
        }
        const utf8::Character character = utf8::decode(text_, at_);
        at_ += character.length;
        return fold(character.code);
    }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
};

// Which bits of eight bytes differ.
std::uint64_t differences(const char* left, const char* right) noexcept {
    std::uint64_t a = 0;
    std::uint64_t b = 0;
    std::memcpy(&a, left, sizeof a);
    std::memcpy(&b, right, sizeof b);
    return a ^ b;
}

std::size_t first_byte(std::uint64_t bits) noexcept {
    // The bytes of a word lie in the order of the text on every machine we build for.
    static_assert(std::endian::native == std::endian::little);
    return static_cast<std::size_t>(std::countr_zero(bits)) / 8;
}

// Where the texts differ first; the shorter one's size where they do not.
std::size_t first_difference(const char* left, const char* right, std::size_t common) noexcept {
    constexpr std::size_t step = sizeof(std::uint64_t);
    std::size_t at = 0;
    for (; at + step <= common; at += step) {
        if (const std::uint64_t bits = differences(left + at, right + at); bits != 0) {
            return at + first_byte(bits);
        }
    }
    if (at > 0 && at < common) {
        // The rest in one step, with some bytes before it once more.
        const std::uint64_t bits = differences(left + common - step, right + common - step);
        return bits == 0 ? common : common - step + first_byte(bits);
    }
    while (at < common && left[at] == right[at]) {
        ++at;
    }
    return at;
}

// Kept apart from the short way, which needs none of its room on the stack.
[[gnu::noinline]] int compare_whole(std::string_view left, std::string_view right) noexcept {
    Folded one(without_trailing_blanks(left));
    Folded other(without_trailing_blanks(right));
    int letters = 0;  // the first difference that is only one of accents
    while (!one.at_end() && !other.at_end()) {
        const char32_t a = one.next();
        const char32_t b = other.next();
        if (a == b) {
            continue;
        }
        if (const char32_t base_a = base_of(a), base_b = base_of(b); base_a != base_b) {
            return base_a < base_b ? -1 : 1;
        }
        if (letters == 0) {
            letters = a < b ? -1 : 1;
        }
    }
    if (!one.at_end()) {
        return 1;
    }
    return other.at_end() ? letters : -1;
}

bool matches(std::string_view text, std::string_view pattern, char32_t escape) noexcept {
    Folded at(text);
    Folded want(pattern);
    // Where to go on when what follows the last "%" does not fit: one character further on.
    bool has_percent = false;
    Folded text_again(text);
    Folded pattern_again(pattern);
    for (;;) {
        Folded ahead = want;
        bool fits = false;
        if (want.at_end()) {
            fits = at.at_end();
            if (fits) {
                return true;
            }
        } else {
            char32_t wanted = ahead.next();
            const bool literal = escape != 0 && wanted == fold(escape) && !ahead.at_end();
            if (literal) {
                wanted = ahead.next();
            }
            if (wanted == U'%' && !literal) {
                want = ahead;
                has_percent = true;
                pattern_again = ahead;
                text_again = at;
                continue;
            }
            if (!at.at_end()) {
                const char32_t found = at.next();
                fits = found == wanted || (wanted == U'_' && !literal);
            }
        }
        if (fits) {
            want = ahead;
            continue;
        }
        if (!has_percent || text_again.at_end()) {
            return false;
        }
        text_again.next();
        at = text_again;
        want = pattern_again;
    }
}

}  // namespace

// Keys and most texts are told apart by one ASCII character: what is the same before it reads alike
// whatever it is, and behind it nothing counts. Everything else is read from the beginning.
int compare_texts(std::string_view left, std::string_view right) noexcept {
    const std::size_t common = std::min(left.size(), right.size());
    const std::size_t at = first_difference(left.data(), right.data(), common);
    if (at < common) {
        if (decides(left[at]) && decides(right[at])) {
            const std::uint8_t a = ascii_folded[static_cast<unsigned char>(left[at])];
            const std::uint8_t b = ascii_folded[static_cast<unsigned char>(right[at])];
            if (a != b) {
                return a < b ? -1 : 1;
            }
        }
    } else if (left.size() == right.size()) {
        return 0;
    } else if (left.size() > common && decides(left[common])) {
        return 1;
    } else if (right.size() > common && decides(right[common])) {
        return -1;
    }
    return compare_whole(left, right);
}

bool is_like(std::string_view text, std::string_view pattern, char32_t escape) noexcept {
    const std::string_view trimmed = without_trailing_blanks(text);
    return matches(trimmed, without_trailing_blanks(pattern), escape) ||
           (trimmed.size() != text.size() && matches(text, pattern, escape)) ||
           matches(trimmed, pattern, escape);
}

}  // namespace cvdeveloper::standalone::sql
