#include "host/sql/names.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace cvdeveloper::standalone::sql {

namespace {

// Capital letters of Latin-1 are C3 80 to C3 9E in UTF-8, the small ones 0x20 above; C3 97 is the
// multiplication sign. That covers every letter of the schema.
constexpr unsigned char latin_lead = 0xC3;

constexpr char fold(char c, char before) noexcept {
    if (c >= 'A' && c <= 'Z') {
        return static_cast<char>(c + ('a' - 'A'));
    }
    const auto byte = static_cast<unsigned char>(c);
    if (static_cast<unsigned char>(before) == latin_lead && byte >= 0x80 && byte <= 0x9E &&
        byte != 0x97) {
        return static_cast<char>(byte + 0x20);
    }
    return c;
}

bool is_ascii(std::string_view text) noexcept {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The small umlaut for a pair of letters, or nothing.
std::string_view umlaut(char first, char second) noexcept {
    if (fold(second, '\0') != 'e') {
        return {};
    }
    switch (fold(first, '\0')) {
        case 'a':
            return "ä";
        case 'o':
            return "ö";
        case 'u':
            return "ü";
        default:
            return {};
    }
}

template <class T>
std::uint64_t read(const char* place) noexcept {
    T word;
    std::memcpy(&word, place, sizeof word);
    return word;
}

// A name of less than eight bytes as one number.
std::uint64_t read_short(std::string_view name) noexcept {
    const char* const data = name.data();
    const std::size_t size = name.size();
    if (size >= 4) {
        return read<std::uint32_t>(data) | read<std::uint32_t>(data + size - 4) << 32U;
    }
    if (size == 0) {
        return 0;
    }
    return read<std::uint8_t>(data) | read<std::uint8_t>(data + size / 2) << 8U |
           read<std::uint8_t>(data + size - 1) << 16U;
}

constexpr std::uint64_t in_each_byte(unsigned char byte) noexcept {
    return byte * 0x0101010101010101U;
}

// Tells capitals from small letters, umlauts included.
constexpr std::uint64_t case_bits = in_each_byte(0x20);

// The capital letters of eight bytes of ASCII made small.
constexpr std::uint64_t with_small_letters(std::uint64_t word) noexcept {
    const std::uint64_t from_a = word + in_each_byte(0x80 - 'A');
    const std::uint64_t behind_z = word + in_each_byte(0x7F - 'Z');
    return word | (from_a & ~behind_z & in_each_byte(0x80)) >> 2U;
}

}  // namespace

NameKey::NameKey(std::string_view name) noexcept : size_(static_cast<std::uint32_t>(name.size())) {
    if (name.size() < 8) {
        first_ = read_short(name);
    } else {
        first_ = read<std::uint64_t>(name.data());
        last_ = read<std::uint64_t>(name.data() + name.size() - 8);
    }
    says_all_ = name.size() <= 16 && ((first_ | last_) & in_each_byte(0x80)) == 0;
    if (says_all_) {
        first_ = with_small_letters(first_);
        last_ = with_small_letters(last_);
    } else {
        first_ &= ~case_bits;
        last_ &= ~case_bits;
    }
}

std::string folded_name(std::string_view name) {
    std::string folded(name);
    for (std::size_t i = 0; i < folded.size(); ++i) {
        folded[i] = fold(name[i], i == 0 ? '\0' : name[i - 1]);
    }
    return folded;
}

bool equal_names(std::string_view left, std::string_view right) noexcept {
    if (left.size() != right.size()) {
        return false;
    }
    if (left == right) {
        return true;
    }
    char before_left = '\0';
    char before_right = '\0';
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] != right[i] && fold(left[i], before_left) != fold(right[i], before_right)) {
            return false;
        }
        before_left = left[i];
        before_right = right[i];
    }
    return true;
}

std::string with_umlauts(std::string_view name) {
    std::string result;
    result.reserve(name.size());
    for (std::size_t i = 0; i < name.size(); ++i) {
        const std::string_view letter =
            i + 1 < name.size() ? umlaut(name[i], name[i + 1]) : std::string_view();
        if (letter.empty()) {
            result += name[i];
        } else {
            result += letter;
            ++i;
        }
    }
    return result;
}

void Spelling::add(std::string_view name, NameUse use) {
    Entry& entry = names_[std::string(name)];
    std::string& spelling = use == NameUse::Table ? entry.as_table : entry.as_column;
    if (spelling.empty()) {
        spelling = name;
    }
}

std::string_view Spelling::choose(const Entry& entry, NameUse use) noexcept {
    const bool as_table =
        entry.as_column.empty() || (use == NameUse::Table && !entry.as_table.empty());
    return as_table ? entry.as_table : entry.as_column;
}

std::string_view Spelling::of(std::string_view name, NameUse use) const {
    if (is_ascii(name)) {
        bool has_pair = false;
        for (std::size_t i = 1; i < name.size(); ++i) {
            has_pair = has_pair || !umlaut(name[i - 1], name[i]).empty();
        }
        if (!has_pair || names_.contains(name)) {
            return name;
        }
        const auto found = names_.find(with_umlauts(name));
        return found == names_.end() ? name : choose(found->second, use);
    }
    const auto found = names_.find(name);
    return found == names_.end() ? name : choose(found->second, use);
}

}  // namespace cvdeveloper::standalone::sql
