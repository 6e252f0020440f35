#pragma once

#include <optional>
#include <string>
#include <string_view>

// What people enter as a detail value, read as its field kind means it: a single value, or a range
// as "100 - 200", "100-200", "100 bis 200", "von 100 bis 200", "bis 300", "ab 50". Nothing where
// the text is no such thing, or the range runs backwards.
namespace cvdeveloper::standalone {

// Ends of open ranges, so that a search needs no special case for them.
inline constexpr double lowest_number = 0;
inline constexpr double highest_number = 999'999'999;
inline constexpr double lowest_day = 0;
inline constexpr double highest_day = 2'958'465;  // 31.12.9999
inline constexpr std::string_view lowest_postcode = "0";
inline constexpr std::string_view highest_postcode = "99999";

struct NumberRange {
    double from = 0;
    double to = 0;
    friend bool operator==(const NumberRange&, const NumberRange&) = default;
};
struct TextRange {
    std::string from;
    std::string to;
    friend bool operator==(const TextRange&, const TextRange&) = default;
};

std::optional<NumberRange> read_numbers(std::string_view entry);
std::optional<NumberRange> read_dates(std::string_view entry);
std::optional<TextRange> read_postcodes(std::string_view entry);
// "Ja", "Nein", and other words for them.
std::optional<bool> read_yes_or_no(std::string_view entry);

}  // namespace cvdeveloper::standalone
