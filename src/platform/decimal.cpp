#include "platform/decimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace cvdeveloper {
namespace {

constexpr int significant_digits = 15;

// From "-1.2345e+02", as std::to_chars writes it.
Decimal from_scientific(std::string_view text) {
    Decimal decimal;
    if (text.starts_with('-')) {
        decimal.negative = true;
        text.remove_prefix(1);
    }
    const std::size_t e = text.find('e');
    for (const char c : text.substr(0, e)) {
        if (c != '.') {
            decimal.digits.push_back(c);
        }
    }
    std::string_view exponent = text.substr(e + 1);
    if (exponent.starts_with('+')) {
        exponent.remove_prefix(1);
    }
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.point);
    decimal.point += 1;
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    if (decimal.digits.empty()) {
        return {};
    }
    return decimal;
}

Decimal rounded_decimal(double number) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::scientific, significant_digits - 1);
    return from_scientific({buffer.data(), result.ptr});
}

std::string with_exponent(const Decimal& decimal, char decimal_point) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) {
        text += decimal_point;
        text.append(decimal.digits, 1);
    }
    const int exponent = decimal.point - 1;
    const std::string places = std::to_string(std::abs(exponent));
    text += exponent < 0 ? "E-" : "E+";
    text += places.size() < 2 ? "0" : "";
    return text.append(places);
}

std::string written_out(const Decimal& decimal, char decimal_point, LeadingZero leading_zero) {
    const auto size = static_cast<int>(decimal.digits.size());
    if (decimal.point >= size) {
        return decimal.digits + std::string(static_cast<std::size_t>(decimal.point - size), '0');
    }
    if (decimal.point > 0) {
        const auto before = static_cast<std::size_t>(decimal.point);
        std::string text = decimal.digits;
        return text.insert(before, 1, decimal_point);
    }
    std::string text = leading_zero == LeadingZero::Written ? "0" : "";
    text += decimal_point;
    return text.append(static_cast<std::size_t>(-decimal.point), '0').append(decimal.digits);
}

}  // namespace

void Decimal::round(int decimals) {
    const int kept = point + decimals;
    if (kept >= static_cast<int>(digits.size())) {
        return;
    }
    const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(kept > 0 ? static_cast<std::size_t>(kept) : 0);
    if (up) {
        digits.erase(digits.find_last_not_of('9') + 1);
        if (digits.empty()) {
            digits.assign(1, '1');
            // All nines, or nothing at all, were carried into the place before.
            point += 1;
        } else {
            digits.back() = static_cast<char>(digits.back() + 1);
        }
    }
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty()) {
        *this = {};
    }
}

Decimal shortest_decimal(double number) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::scientific);
    return from_scientific({buffer.data(), result.ptr});
}

std::string decimal_text(double number, char decimal_point, LeadingZero leading_zero) {
    if (!std::isfinite(number)) {
        std::string text = std::signbit(number) ? "-1" : "1";
        text += decimal_point;
        return text + (std::isnan(number) ? "#IND" : "#INF");
    }
    const Decimal decimal = rounded_decimal(number);
    if (decimal.digits.empty()) {
        return "0";
    }
    const int decimals = static_cast<int>(decimal.digits.size()) - decimal.point;
    const bool short_enough = decimal.point <= significant_digits && decimals <= significant_digits;
    std::string text = decimal.negative ? "-" : "";
    return text + (short_enough ? written_out(decimal, decimal_point, leading_zero)
                                : with_exponent(decimal, decimal_point));
}

}  // namespace cvdeveloper
