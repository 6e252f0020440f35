#include "platform/regional.h"

#include <algorithm>
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

std::string padded(int number, std::size_t places) {
    std::string text = std::to_string(number);
    text.insert(text.begin(), places - std::min(places, text.size()), '0');
    return text;
}

std::string short_date(Date date) {
    const CalendarDate day = calendar_date(date);
    return padded(day.day, 2) + '.' + padded(day.month, 2) + '.' + padded(day.year, 4);
}

std::string long_date(Date date) {
    const CalendarDate day = calendar_date(date);
    std::string text(weekday_names[static_cast<std::size_t>(weekday(date) - 1)]);
    text += ", " + std::to_string(day.day) + ". ";
    text += month_names[static_cast<std::size_t>(day.month - 1)];
    return text + ' ' + std::to_string(day.year);
}

std::string short_time(Date date) {
    const TimeOfDay time = time_of_day(date);
    return padded(time.hour, 2) + ':' + padded(time.minute, 2);
}

std::string long_time(Date date) {
    return short_time(date) + ':' + padded(time_of_day(date).second, 2);
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
    const bool midnight = time.hour == 0 && time.minute == 0 && time.second == 0;
    const CalendarDate day = calendar_date(date);
    const bool day_zero = day.year == 1899 && day.month == 12 && day.day == 30;
    if (day_zero) {
        return long_time(date);
    }
    return midnight ? short_date(date) : short_date(date) + ' ' + long_time(date);
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
            return short_date(date);
        case DateFormat::LongTime:
            return long_time(date);
        case DateFormat::ShortTime:
            return short_time(date);
    }
    return general_date(date);
}

}  // namespace cvdeveloper::regional
