#include "host/keys.h"

#include <sodium.h>

#include <array>

#include "host/errors.h"

namespace cvdeveloper::standalone {

// Version 4: 8-4-4-4-12 digits.
std::string new_key() {
    if (sodium_init() < 0) {
        raise(HostError::Database, "Der Zufallsgenerator steht nicht zur Verfügung.");
    }
    std::array<unsigned char, 16> bytes{};
    randombytes_buf(bytes.data(), bytes.size());
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0FU) | 0x40U);
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
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted += '\'';
    for (;;) {
        const std::size_t quote = text.find('\'');
        if (quote == std::string_view::npos) {
            return quoted.append(text) += '\'';
        }
        quoted.append(text.substr(0, quote + 1)) += '\'';
        text.remove_prefix(quote + 1);
    }
}

}  // namespace cvdeveloper::standalone
