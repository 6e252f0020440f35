#include "host/database/date_text.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>

namespace cvdeveloper::standalone {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days day_0 = year(1899) / 12 / 30;
constexpr std::int64_t milliseconds_a_day = 86'400'000;
constexpr double first_day = static_cast<double>((sys_days(year(100) / 1 / 1) - day_0).count());
constexpr double last_day = static_cast<double>((sys_days(year(9999) / 12 / 31) - day_0).count());

void write(char* place, std::int64_t number, int digits) {
    for (int i = digits; i > 0; --i) {
        place[i - 1] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

// The number that the two digits at a place make; negative where they are none.
int two_digits(const char* place) noexcept {
    const int tens = place[0] - '0';
    const int ones = place[1] - '0';
    return tens >= 0 && tens <= 9 && ones >= 0 && ones <= 9 ? tens * 10 + ones : -10'000;
}

// "14:30", "14:30:00", "14:30:00.25" as a part of a day.
std::optional<double> parse_time(std::string_view text) noexcept {
    if (text.size() < 5) {
        return std::nullopt;
    }
    const int hours = two_digits(text.data());
    const int minutes = two_digits(text.data() + 3);
    if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59 || text[2] != ':') {
        return std::nullopt;
    }
    double seconds = 0;
    if (text.size() > 5) {
        const int whole = text.size() < 8 ? -1 : two_digits(text.data() + 6);
        if (text[5] != ':' || whole < 0 || whole > 59) {
            return std::nullopt;
        }
        seconds = whole;
        if (text.size() > 8) {
            const char* const end = text.data() + text.size();
            const auto [stop, error] = std::from_chars(text.data() + 6, end, seconds);
            if (error != std::errc() || stop != end) {
                return std::nullopt;
            }
        }
    }
    return (hours * 3600 + minutes * 60 + seconds) / 86400.0;
}

}  // namespace

std::optional<std::string> date_text(Date date) {
    if (!(date.days >= first_day && date.days < last_day + 1)) {
        return std::nullopt;
    }
    // The time of day runs forward on negative days too: -1.25 is 06:00 of the day before day 0.
    double whole = std::trunc(date.days);
    auto time = static_cast<std::int64_t>(
        std::llround(std::abs(date.days - whole) * static_cast<double>(milliseconds_a_day)));
    if (time == milliseconds_a_day) {
        time = 0;
        whole += 1;
    }
    const year_month_day calendar(day_0 + days(static_cast<std::int64_t>(whole)));
    std::string text("0000-00-00 00:00:00");
    write(text.data(), static_cast<int>(calendar.year()), 4);
    write(text.data() + 5, static_cast<unsigned>(calendar.month()), 2);
    write(text.data() + 8, static_cast<unsigned>(calendar.day()), 2);
    write(text.data() + 11, time / 3'600'000, 2);
    write(text.data() + 14, time / 60'000 % 60, 2);
    write(text.data() + 17, time / 1000 % 60, 2);
    if (time % 1000 != 0) {
        text += ".000";
        write(text.data() + 20, time % 1000, 3);
    }
    return text;
}

std::optional<Date> parse_date_text(std::string_view text) noexcept {
    if (text.size() < 10) {
        return std::nullopt;
    }
    const int the_year = two_digits(text.data()) * 100 + two_digits(text.data() + 2);
    const int the_month = two_digits(text.data() + 5);
    const int the_day = two_digits(text.data() + 8);
    if (the_year < 100 || the_month < 1 || the_day < 1 || text[4] != '-' || text[7] != '-') {
        return std::nullopt;
    }
    const year_month_day calendar(year(the_year), month(static_cast<unsigned>(the_month)),
                                  day(static_cast<unsigned>(the_day)));
    if (!calendar.ok()) {
        return std::nullopt;
    }
    double time = 0;
    if (text.size() > 10) {
        const auto parsed = text[10] == ' ' || text[10] == 'T' ? parse_time(text.substr(11))
                                                               : std::optional<double>();
        if (!parsed) {
            return std::nullopt;
        }
        time = *parsed;
    }
    const auto whole = static_cast<double>((sys_days(calendar) - day_0).count());
    return Date{whole < 0 ? whole - time : whole + time};
}

}  // namespace cvdeveloper::standalone
