#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/date.h"

// Dates as the database keeps them: "2026-03-01 14:30:00", with ".250" where there are
// milliseconds. In this form conditions on dates work as comparisons of texts.
namespace cvdeveloper::standalone {

// Nothing for a date before the year 100 or after 9999.
std::optional<std::string> date_text(Date date);

// Also takes the day alone, a "T" between day and time, and leaves out seconds.
std::optional<Date> parse_date_text(std::string_view text) noexcept;

}  // namespace cvdeveloper::standalone
