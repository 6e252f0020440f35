#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>

#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper::regional {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view trim_white_space(std::string_view text) {
    constexpr std::string_view white_space = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(white_space);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

// What stands before and behind a number: one sign or brackets, and one currency, on either side
// and in any order.
class Frame {
  public:
    explicit Frame(std::string_view text) : text_(text) {
        while (take_in_front() || take_behind()) {
            text_ = trim_white_space(text_);
        }
    }
    [[nodiscard]] bool is_complete() const {
        return is_open_ == is_closed_ && !(is_open_ && has_sign_);
    }
    [[nodiscard]] bool is_negative() const { return is_negative_; }
    [[nodiscard]] std::string_view inside() const { return text_; }

  private:
    bool take_in_front() {
        for (const std::string_view name : currencies) {
            if (!has_currency_ && text_.starts_with(name)) {
                text_.remove_prefix(name.size());
                return has_currency_ = true;
            }
        }
        if (!text_.empty() &&
            (take_sign(text_.front()) || take_bracket(text_.front(), '(', is_open_))) {
            text_.remove_prefix(1);
            return true;
        }
        return false;
    }
    bool take_behind() {
        for (const std::string_view name : currencies) {
            if (!has_currency_ && text_.ends_with(name)) {
                text_.remove_suffix(name.size());
                return has_currency_ = true;
            }
        }
        if (!text_.empty() &&
            (take_sign(text_.back()) || take_bracket(text_.back(), ')', is_closed_))) {
            text_.remove_suffix(1);
            return true;
        }
        return false;
    }
    bool take_sign(char c) {
        if (has_sign_ || (c != '-' && c != '+')) {
            return false;
        }
        is_negative_ = is_negative_ || c == '-';
        return has_sign_ = true;
    }
    bool take_bracket(char c, char bracket, bool& is_there) {
        if (is_there || c != bracket) {
            return false;
        }
        is_negative_ = true;
        return is_there = true;
    }

    static constexpr std::array<std::string_view, 2> currencies = {"€", "EUR"};

    std::string_view text_;
    bool has_sign_ = false;
    bool has_currency_ = false;
    bool is_open_ = false;
    bool is_closed_ = false;
    bool is_negative_ = false;
};

std::string_view take_digits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && is_digit(text[count])) {
        ++count;
    }
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

// "1.234" or "1234"; behind the first digit points stand where they like.
std::string take_whole_part(std::string_view& text) {
    std::string digits(take_digits(text));
    while (!digits.empty() && text.starts_with('.')) {
        text.remove_prefix(1);
        digits += take_digits(text);
    }
    return digits;
}

// A number without its frame.
struct Digits {
    std::string whole;
    std::string_view decimals;
    bool has_negative_exponent = false;
    std::string_view exponent;
};

bool take_exponent(std::string_view& text, Digits& digits) {
    constexpr std::string_view letters = "EeDd";
    if (text.empty() || letters.find(text.front()) == std::string_view::npos) {
        return true;
    }
    text.remove_prefix(1);
    if (text.starts_with('+') || text.starts_with('-')) {
        digits.has_negative_exponent = text.front() == '-';
        text.remove_prefix(1);
    }
    digits.exponent = take_digits(text);
    return !digits.exponent.empty();
}

std::optional<Digits> read_digits(std::string_view text) {
    Digits digits{.whole = take_whole_part(text), .decimals = {}, .exponent = {}};
    if (text.starts_with(',')) {
        text.remove_prefix(1);
        digits.decimals = take_digits(text);
    }
    const bool has_digit = !digits.whole.empty() || !digits.decimals.empty();
    return has_digit && take_exponent(text, digits) && text.empty() ? std::optional(digits)
                                                                    : std::nullopt;
}

// Whether a number that no double holds is too small, not too large.
bool is_next_to_nothing(const Digits& digits) {
    constexpr std::int64_t any_double_and_more = 1'000'000'000;
    std::int64_t exponent = any_double_and_more;
    std::from_chars(digits.exponent.data(), digits.exponent.data() + digits.exponent.size(),
                    exponent);
    exponent = digits.exponent.empty() ? 0 : std::min(exponent, any_double_and_more);
    const std::size_t first = digits.whole.find_first_not_of('0');
    const std::size_t places =
        first == std::string::npos
            ? std::min(digits.decimals.find_first_not_of('0'), digits.decimals.size())
            : digits.whole.size() - first;
    const auto magnitude = static_cast<std::int64_t>(places);
    return (first == std::string::npos ? -magnitude : magnitude) +
               (digits.has_negative_exponent ? -exponent : exponent) <
           0;
}

std::optional<double> value_of(const Digits& digits) {
    std::string plain = digits.whole;
    plain.append(".").append(digits.decimals);
    if (!digits.exponent.empty()) {
        plain.append(digits.has_negative_exponent ? "e-" : "e").append(digits.exponent);
    }
    double number = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (result.ec == std::errc()) {
        return number;
    }
    return is_next_to_nothing(digits) ? std::optional(0.0) : std::nullopt;
}

// "&H1F" and "&O17", up to what 31 bits hold.
std::optional<double> read_based(std::string_view text) {
    if (text.size() < 3 || text[0] != '&') {
        return std::nullopt;
    }
    const char letter = text[1];
    const int base = letter == 'H' || letter == 'h' ? 16 : letter == 'O' || letter == 'o' ? 8 : 0;
    if (base == 0 || text[2] == '-') {
        return std::nullopt;
    }
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data() + 2, end, number, base);
    return error == std::errc() && rest == end ? std::optional<double>(number) : std::nullopt;
}

}  // namespace

std::optional<double> parse_number(std::string_view text) {
    const std::string_view trimmed = trim_white_space(text);
    if (const auto number = read_based(trimmed)) {
        return number;
    }
    const Frame frame(trimmed);
    const std::optional<Digits> digits = read_digits(frame.inside());
    if (!digits || !frame.is_complete()) {
        return std::nullopt;
    }
    const std::optional<double> number = value_of(*digits);
    return number && frame.is_negative() ? -*number : number;
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
