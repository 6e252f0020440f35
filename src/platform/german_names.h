#pragma once

#include <array>
#include <string_view>

namespace cvdeveloper::regional {

inline constexpr std::array<std::string_view, 7> weekday_names{
    "Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};

inline constexpr std::array<std::string_view, 12> month_names{
    "Januar", "Februar", "März",      "April",   "Mai",      "Juni",
    "Juli",   "August",  "September", "Oktober", "November", "Dezember"};

}  // namespace cvdeveloper::regional
