#include <charconv>
#include <chrono>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/german_names.h"
#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper::regional {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
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

struct Token {
    enum class Kind : unsigned char { Number, Word, Mark } kind;
    std::string_view text;
};

// Numbers, words and single marks, without the blanks between them.
std::vector<Token> tokens_of(std::string_view text) {
    std::vector<Token> tokens;
    while (!text.empty()) {
        const char first = text.front();
        if (first == ' ') {
            text.remove_prefix(1);
        } else if (is_digit(first)) {
            tokens.push_back({Token::Kind::Number, take_digits(text)});
        } else if (const std::size_t end = text.find_first_of(" .,:-/0123456789"); end == 0) {
            tokens.push_back({Token::Kind::Mark, text.substr(0, 1)});
            text.remove_prefix(1);
        } else {
            tokens.push_back({Token::Kind::Word, text.substr(0, end)});
            text.remove_prefix(end == std::string_view::npos ? text.size() : end);
        }
    }
    return tokens;
}

int month_named(std::string_view word) {
    for (std::size_t month = 0; month < month_names.size(); ++month) {
        // The short forms are the first three letters: "Jan", "Mär".
        const std::string_view name = month_names[month];
        if (equal_ignoring_case(word, name) || equal_ignoring_case(word, first_units(name, 3))) {
            return static_cast<int>(month) + 1;
        }
    }
    return 0;
}

bool is_weekday_name(std::string_view word) {
    for (const std::string_view name : weekday_names) {
        if (equal_ignoring_case(word, name) || equal_ignoring_case(word, name.substr(0, 2))) {
            return true;
        }
    }
    return false;
}

// Reads a date and a time off the tokens, from the left.
class DateReader {
  public:
    explicit DateReader(std::string_view text) : tokens_(tokens_of(text)) {}

    std::optional<Date> read() {
        if (tokens_.empty()) {
            return std::nullopt;
        }
        if (is_time()) {
            return read_time() && at_end() ? valid_date() : std::nullopt;
        }
        if (!(is_iso() ? read_iso() : read_german())) {
            return std::nullopt;
        }
        if (!at_end() && !read_time()) {
            return std::nullopt;
        }
        return at_end() ? valid_date() : std::nullopt;
    }

  private:
    [[nodiscard]] bool at_end() const { return next_ == tokens_.size(); }
    [[nodiscard]] bool is(std::size_t ahead, Token::Kind kind) const {
        return next_ + ahead < tokens_.size() && tokens_[next_ + ahead].kind == kind;
    }
    [[nodiscard]] bool is_mark(std::size_t ahead, std::string_view mark) const {
        return is(ahead, Token::Kind::Mark) && tokens_[next_ + ahead].text == mark;
    }
    [[nodiscard]] bool is_time() const { return is(0, Token::Kind::Number) && is_mark(1, ":"); }
    [[nodiscard]] bool is_iso() const {
        return is(0, Token::Kind::Number) && tokens_[next_].text.size() == 4 && is_mark(1, "-");
    }

    bool take_mark(std::string_view mark) {
        if (!is_mark(0, mark)) {
            return false;
        }
        ++next_;
        return true;
    }
    bool take_number(int& number, std::size_t most_digits) {
        if (!is(0, Token::Kind::Number) || tokens_[next_].text.size() > most_digits) {
            return false;
        }
        const std::string_view text = tokens_[next_++].text;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return true;
    }
    bool take_month_name() {
        if (!is(0, Token::Kind::Word)) {
            return false;
        }
        date_.month = month_named(tokens_[next_].text);
        next_ += date_.month != 0 ? 1 : 0;
        return date_.month != 0;
    }
    bool take_year() {
        const std::size_t digits = tokens_[next_].text.size();
        if (!take_number(date_.year, 4)) {
            return false;
        }
        if (digits <= 2) {
            date_.year += date_.year < 30 ? 2000 : 1900;
        }
        return true;
    }

    bool read_iso() {
        return take_number(date_.year, 4) && take_mark("-") && take_number(date_.month, 2) &&
               take_mark("-") && take_number(date_.day, 2);
    }

    // Day, month, year, with or without the weekday before and the year behind.
    bool read_german() {
        if (is(0, Token::Kind::Word) && is_weekday_name(tokens_[next_].text)) {
            ++next_;
            take_mark(".");
            take_mark(",");
        }
        if (!take_number(date_.day, 2)) {
            return false;
        }
        const std::string_view mark = is(0, Token::Kind::Mark) ? tokens_[next_].text : "";
        if (mark == "." || mark == "/" || mark == "-") {
            ++next_;
        } else if (!is(0, Token::Kind::Word)) {
            return false;
        }
        if (!take_month_name() && !take_number(date_.month, 2)) {
            return false;
        }
        const bool separated = take_mark(mark.empty() ? "." : mark);
        if (is(0, Token::Kind::Number) && !is_time()) {
            return take_year();
        }
        date_.year = calendar_date(now()).year;
        return !separated || mark == ".";
    }

    bool read_time() {
        if (!take_number(time_.hour, 2) || !take_mark(":") || !take_number(time_.minute, 2)) {
            return false;
        }
        return !take_mark(":") || take_number(time_.second, 2);
    }

    [[nodiscard]] std::optional<Date> valid_date() const {
        const std::chrono::year_month_day day{
            std::chrono::year{date_.year}, std::chrono::month{static_cast<unsigned>(date_.month)},
            std::chrono::day{static_cast<unsigned>(date_.day)}};
        const bool real_day = day.ok() && date_.year >= 100;
        const bool real_time = time_.hour < 24 && time_.minute < 60 && time_.second < 60;
        return real_day && real_time ? std::optional(make_date(date_, time_)) : std::nullopt;
    }

    std::vector<Token> tokens_;
    std::size_t next_ = 0;
    // A time alone is a time of day 0.
    CalendarDate date_{.year = 1899, .month = 12, .day = 30};
    TimeOfDay time_;
};

}  // namespace

std::optional<Date> parse_date(std::string_view text) {
    return DateReader(text).read();
}

}  // namespace cvdeveloper::regional
