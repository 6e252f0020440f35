#include <charconv>
#include <string>

#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper::regional {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

bool take_prefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) {
        return false;
    }
    text = trim_blanks(text.substr(prefix.size()));
    return true;
}

bool take_suffix(std::string_view& text, std::string_view suffix) {
    if (!text.ends_with(suffix)) {
        return false;
    }
    text = trim_blanks(text.substr(0, text.size() - suffix.size()));
    return true;
}

std::string_view take_digits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && is_digit(text[count])) {
        ++count;
    }
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

// "1.234" or "1234"; a point anywhere but before three digits makes it no number.
bool take_whole_part(std::string_view& text, std::string& plain) {
    std::string_view group = take_digits(text);
    plain += group;
    bool grouped = false;
    while (text.starts_with('.')) {
        const bool first_fits = grouped || (!group.empty() && group.size() <= 3);
        text.remove_prefix(1);
        group = take_digits(text);
        if (!first_fits || group.size() != 3) {
            return false;
        }
        plain += group;
        grouped = true;
    }
    return true;
}

// The number without sign, currency and blanks, as std::from_chars reads it.
std::optional<std::string> plain_number(std::string_view text) {
    std::string plain;
    if (!take_whole_part(text, plain)) {
        return std::nullopt;
    }
    bool any_digit = !plain.empty();
    if (text.starts_with(',')) {
        text.remove_prefix(1);
        const std::string_view decimals = take_digits(text);
        any_digit = any_digit || !decimals.empty();
        plain.append(".").append(decimals);
    }
    if (!any_digit) {
        return std::nullopt;
    }
    if (text.starts_with('E') || text.starts_with('e')) {
        text.remove_prefix(1);
        plain += 'e';
        if (text.starts_with('+') || text.starts_with('-')) {
            plain += text.front();
            text.remove_prefix(1);
        }
        const std::string_view exponent = take_digits(text);
        if (exponent.empty()) {
            return std::nullopt;
        }
        plain += exponent;
    }
    if (!text.empty()) {
        return std::nullopt;
    }
    return plain;
}

}  // namespace

std::optional<double> parse_number(std::string_view text) {
    text = trim_blanks(text);
    const bool parentheses = text.starts_with('(') && text.ends_with(')');
    if (parentheses) {
        text = trim_blanks(text.substr(1, text.size() - 2));
    }
    bool negative = parentheses;
    bool currency = take_prefix(text, "€") || take_prefix(text, "EUR");
    if (!parentheses) {
        negative = take_prefix(text, "-");
        if (!negative) {
            take_prefix(text, "+");
        }
    }
    currency = currency || take_prefix(text, "€") || take_prefix(text, "EUR");
    if (!currency) {
        static_cast<void>(take_suffix(text, "€") || take_suffix(text, "EUR"));
    }

    const std::optional<std::string> plain = plain_number(text);
    if (!plain) {
        return std::nullopt;
    }
    double number = 0;
    const auto result = std::from_chars(plain->data(), plain->data() + plain->size(), number);
    if (result.ec != std::errc()) {
        return std::nullopt;  // more than a number can hold
    }
    return negative ? -number : number;
}

std::optional<bool> parse_boolean(std::string_view text) {
    const std::string_view word = trim_blanks(text);
    if (equal_ignoring_case(word, "Wahr") || equal_ignoring_case(word, "True")) {
        return true;
    }
    if (equal_ignoring_case(word, "Falsch") || equal_ignoring_case(word, "False")) {
        return false;
    }
    return std::nullopt;
}

}  // namespace cvdeveloper::regional
