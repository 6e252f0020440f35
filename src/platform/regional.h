#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/date.h"

// How numbers, dates and truth values read and are written for people: the system's regional
// settings on Windows, German everywhere else.
namespace cvdeveloper::regional {

// "1,5", "-0,25", "1E+20": the shortest text that reads back as the number, without grouping.
std::string number_text(double number);
// "15.11.2026 11:25:39"; the date alone at midnight, the time alone on day 0.
std::string general_date(Date date);
std::string boolean_text(bool value);  // "Wahr", "Falsch"

// The value that the whole text stands for, blanks around it aside; nothing where it is none.
std::optional<double> parse_number(std::string_view text);
std::optional<Date> parse_date(std::string_view text);
std::optional<bool> parse_boolean(std::string_view text);

// -1: the settings' own; tri-state options -1 yes, 0 no, -2 the settings' own.
struct NumberFormat {
    int decimals = -1;
    int leading_digit = -2;
    int parentheses = -2;
    int grouping = -2;
};
std::string format_number(double number, const NumberFormat& format);
std::string format_currency(double number, const NumberFormat& format);
std::string format_percent(double number, const NumberFormat& format);

enum class DateFormat { General = 0, LongDate = 1, ShortDate = 2, LongTime = 3, ShortTime = 4 };
std::string format_date(Date date, DateFormat format);

}  // namespace cvdeveloper::regional
