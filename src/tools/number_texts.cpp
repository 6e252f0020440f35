#include "tools/number_texts.h"

#include <charconv>
#include <cstdint>
#include <limits>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/object.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/decimal.h"

namespace cvdeveloper {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

// Blanks, tabs and line feeds are skipped wherever they stand.
std::string without_blanks(std::string_view text) {
    std::string plain;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\n') {
            plain += c;
        }
    }
    return plain;
}

// "H" or "O" and digits. Without a closing "&" up to four hexadecimal digits are a 16-bit number
// with a sign, as in the language's own literals.
double radix_number(std::string_view text) {
    const char kind = text.empty() ? '\0' : text.front();
    const bool hexadecimal = kind == 'H' || kind == 'h';
    if (!hexadecimal && kind != 'O' && kind != 'o') {
        return 0;
    }
    text.remove_prefix(1);
    std::uint32_t number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 8);
    if (error == std::errc::result_out_of_range) {
        raise(RuntimeError::Overflow, text);
    }
    const bool is_long = end != text.data() + text.size() && *end == '&';
    if (!is_long && number <= std::numeric_limits<std::uint16_t>::max()) {
        return static_cast<std::int16_t>(number);
    }
    return static_cast<std::int32_t>(number);
}

// The part of the text that std::from_chars can read: digits, one point, an exponent.
std::string decimal_number(std::string_view text) {
    std::string number;
    std::size_t at = 0;
    const auto take_digits = [&] {
        while (at < text.size() && is_digit(text[at])) {
            number += text[at++];
        }
    };
    take_digits();
    if (at < text.size() && text[at] == '.') {
        number += text[at++];
        take_digits();
    }
    constexpr std::string_view exponent_letters = "EeDd";
    if (number.find_first_of("0123456789") == std::string::npos || at == text.size() ||
        exponent_letters.find(text[at]) == std::string_view::npos) {
        return number;
    }
    const std::string mantissa = number;
    number += 'e';
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        number += text[at++];
    }
    const std::size_t exponent = at;
    take_digits();
    return at == exponent ? mantissa : number;
}

}  // namespace

double leading_number(std::string_view text) {
    const std::string plain = without_blanks(text);
    std::string_view rest = plain;
    if (rest.starts_with('&')) {
        return radix_number(rest.substr(1));
    }
    const bool negative = rest.starts_with('-');
    if (negative || rest.starts_with('+')) {
        rest.remove_prefix(1);
    }
    const std::string digits = decimal_number(rest);
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::result_out_of_range) {
        // Too small is 0. The wider type tells which of the two it is.
        long double wide = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), wide);
        if (wide > 1 || digits.find("e-") == std::string::npos) {
            raise(RuntimeError::Overflow, text);
        }
        return 0;
    }
    return negative ? -number : number;
}

std::string signed_text(const Variant& number) {
    if (number.is<Date>()) {
        return to_text(number);
    }
    std::string text = decimal_text(to_double(number), '.', LeadingZero::Omitted);
    if (!text.starts_with('-')) {
        text.insert(text.begin(), ' ');
    }
    return text;
}

}  // namespace cvdeveloper
