#include "host/keys.h"

#include <sodium.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>

#include "host/errors.h"

namespace cvdeveloper::standalone {

// Version 7: 48 bits of milliseconds since 1970, 12 bits of their fraction, 62 random bits. Rows
// that are made together then lie together in every index, which halves the cost of writing many.
std::string new_key() {
    if (sodium_init() < 0) {
        raise(HostError::Database, "Der Zufallsgenerator steht nicht zur Verfügung.");
    }
    std::array<unsigned char, 16> bytes{};
    randombytes_buf(bytes.data(), bytes.size());
    using namespace std::chrono;
    const auto since_1970 = duration_cast<nanoseconds>(system_clock::now().time_since_epoch());
    const auto whole = duration_cast<milliseconds>(since_1970);
    const auto milliseconds_count = static_cast<std::uint64_t>(whole.count());
    const auto fraction = static_cast<std::uint64_t>((since_1970 - whole).count()) * 4096 / 1000000;
    const std::uint64_t first_half = milliseconds_count << 16U | 0x7000U | fraction;
    for (std::size_t i = 0; i < 8; ++i) {
        bytes[i] = static_cast<unsigned char>(first_half >> (56 - 8 * i));
    }
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3FU) | 0x80U);
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string key;
    key.reserve(36);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            key += '-';
        }
        key += digits[bytes[i] >> 4U];
        key += digits[bytes[i] & 0x0FU];
    }
    return key;
}

std::string literal(std::string_view text) {
    // Keys and most texts have no quote: looking for one is quicker than counting them.
    if (text.find('\'') == std::string_view::npos) {
        std::string quoted(text.size() + 2, '\'');
        std::ranges::copy(text, quoted.data() + 1);
        return quoted;
    }
    std::string quoted = "'";
    for (const char c : text) {
        quoted.append(c == '\'' ? 2 : 1, c);
    }
    return quoted += '\'';
}

}  // namespace cvdeveloper::standalone
