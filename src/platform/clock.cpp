#include "platform/clock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>

namespace cvdeveloper {
namespace {

constexpr int seconds_per_day = 86'400;
constexpr std::chrono::sys_days day_zero =
    std::chrono::year{1899} / std::chrono::December / std::chrono::day{30};
// 0100-01-01 to 9999-12-31, what automation dates can hold.
constexpr double first_day = -657'434;
constexpr double last_day = 2'958'465;

struct Moment {
    std::int64_t day = 0;
    int second = 0;
};

// Before day 0 the whole part counts backwards while the fraction still runs forwards.
Moment moment(Date date) {
    const double days = std::isfinite(date.days) ? date.days : 0;
    const double whole = std::clamp(std::trunc(days), first_day, last_day);
    const double fraction = std::clamp(std::abs(days - std::trunc(days)), 0.0, 1.0);
    Moment result{static_cast<std::int64_t>(whole),
                  static_cast<int>(std::lround(fraction * seconds_per_day))};
    if (result.second == seconds_per_day) {
        result.day += 1;
        result.second = 0;
    }
    return result;
}

}  // namespace

CalendarDate calendar_date(Date date) {
    const std::chrono::year_month_day calendar{day_zero + std::chrono::days{moment(date).day}};
    return {static_cast<int>(calendar.year()),
            static_cast<int>(static_cast<unsigned>(calendar.month())),
            static_cast<int>(static_cast<unsigned>(calendar.day()))};
}

TimeOfDay time_of_day(Date date) {
    const int second = moment(date).second;
    return {second / 3600, second / 60 % 60, second % 60};
}

Date make_date(CalendarDate date, TimeOfDay time) {
    const std::chrono::year_month_day calendar{
        std::chrono::year{date.year}, std::chrono::month{static_cast<unsigned>(date.month)},
        std::chrono::day{static_cast<unsigned>(date.day)}};
    const auto day = static_cast<double>((std::chrono::sys_days{calendar} - day_zero).count());
    const double fraction =
        (time.hour * 3600.0 + time.minute * 60.0 + time.second) / seconds_per_day;
    return {day < 0 ? day - fraction : day + fraction};
}

int weekday(Date date) {
    const std::chrono::weekday day{day_zero + std::chrono::days{moment(date).day}};
    return static_cast<int>(day.c_encoding()) + 1;
}

}  // namespace cvdeveloper
