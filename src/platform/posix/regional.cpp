#include "platform/regional.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

#include "platform/clock.h"
#include "platform/decimal.h"
#include "platform/german_names.h"
#include "platform/text.h"

namespace cvdeveloper::regional {
namespace {

constexpr char decimal_point = ',';
constexpr char group_separator = '.';
constexpr int default_decimals = 2;

void append_padded(std::string& text, int number, std::size_t places) {
    std::array<char, 12> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    const auto size = static_cast<std::size_t>(end - digits.data());
    text.append(places - std::min(places, size), '0').append(digits.data(), size);
}

void append_date(std::string& text, const CalendarDate& day) {
    append_padded(text, day.day, 2);
    append_padded(text += '.', day.month, 2);
    append_padded(text += '.', day.year, 4);
}

void append_short_time(std::string& text, const TimeOfDay& time) {
    append_padded(text, time.hour, 2);
    append_padded(text += ':', time.minute, 2);
}

void append_long_time(std::string& text, const TimeOfDay& time) {
    append_short_time(text, time);
    append_padded(text += ':', time.second, 2);
}

template <class Append, class Part>
std::string text_of(Append append, const Part& part) {
    std::string text;
    append(text, part);
    return text;
}

std::string long_date(Date date) {
    const CalendarDate day = calendar_date(date);
    std::string text(weekday_names[static_cast<std::size_t>(weekday(date) - 1)]);
    text += ", " + std::to_string(day.day) + ". ";
    text += month_names[static_cast<std::size_t>(day.month - 1)];
    return text + ' ' + std::to_string(day.year);
}

// "1.234": the digits before the decimal point.
std::string whole_part(const Decimal& decimal, const NumberFormat& format) {
    std::string whole;
    for (int place = 0; place < decimal.point; ++place) {
        const auto index = static_cast<std::size_t>(place);
        whole += index < decimal.digits.size() ? decimal.digits[index] : '0';
    }
    if (whole.empty()) {
        return format.leading_digit == 0 ? "" : "0";
    }
    if (format.grouping != 0) {
        for (std::size_t places = 3; places < whole.size(); places += 4) {
            whole.insert(whole.size() - places, 1, group_separator);
        }
    }
    return whole;
}

std::string formatted(Decimal decimal, const NumberFormat& format, std::string_view unit) {
    const int decimals = format.decimals < 0 ? default_decimals : format.decimals;
    decimal.round(decimals);
    std::string text = whole_part(decimal, format);
    if (decimals > 0) {
        text += decimal_point;
        for (int place = 0; place < decimals; ++place) {
            const int index = decimal.point + place;
            const bool stored = index >= 0 && index < static_cast<int>(decimal.digits.size());
            text += stored ? decimal.digits[static_cast<std::size_t>(index)] : '0';
        }
    }
    text += unit;
    if (!decimal.negative) {
        return text;
    }
    const bool parentheses = format.parentheses == -1;
    text.insert(text.begin(), parentheses ? '(' : '-');
    return parentheses ? text + ')' : text;
}

}  // namespace

std::string number_text(double number) {
    return decimal_text(number, decimal_point, LeadingZero::Written);
}

std::string general_date(Date date) {
    const TimeOfDay time = time_of_day(date);
    const CalendarDate day = calendar_date(date);
    const bool midnight = time.hour == 0 && time.minute == 0 && time.second == 0;
    const bool day_zero = day.year == 1899 && day.month == 12 && day.day == 30;
    std::string text;
    if (!day_zero) {
        append_date(text, day);
    }
    if (day_zero || !midnight) {
        text.append(day_zero ? "" : " ");
        append_long_time(text, time);
    }
    return text;
}

std::string boolean_text(bool value) {
    return value ? "Wahr" : "Falsch";
}

std::string format_number(double number, const NumberFormat& format) {
    return std::isfinite(number) ? formatted(shortest_decimal(number), format, "")
                                 : number_text(number);
}

std::string format_currency(double number, const NumberFormat& format) {
    return std::isfinite(number) ? formatted(shortest_decimal(number), format, " €")
                                 : number_text(number);
}

std::string format_percent(double number, const NumberFormat& format) {
    if (!std::isfinite(number)) {
        return number_text(number);
    }
    Decimal hundredfold = shortest_decimal(number);
    hundredfold.point += hundredfold.digits.empty() ? 0 : 2;
    return formatted(hundredfold, format, "%");
}

std::string format_date(Date date, DateFormat format) {
    switch (format) {
        case DateFormat::General:
            return general_date(date);
        case DateFormat::LongDate:
            return long_date(date);
        case DateFormat::ShortDate:
            return text_of(append_date, calendar_date(date));
        case DateFormat::LongTime:
            return text_of(append_long_time, time_of_day(date));
        case DateFormat::ShortTime:
            return text_of(append_short_time, time_of_day(date));
    }
    return general_date(date);
}

}  // namespace cvdeveloper::regional
