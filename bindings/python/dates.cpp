#include "dates.h"

#include <datetime.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper::python {

namespace {

constexpr std::int64_t microseconds_per_second = 1'000'000;
constexpr std::int64_t microseconds_per_day = 86'400 * microseconds_per_second;
constexpr std::chrono::sys_days day_zero =
    std::chrono::year{1899} / std::chrono::December / std::chrono::day{30};
constexpr double first_day = -693'593;  // 0001-01-01
constexpr double last_day = 2'958'465;  // 9999-12-31

std::int64_t microseconds_of_day(PyObject* object) noexcept {
    const std::int64_t minutes =
        PyDateTime_DATE_GET_HOUR(object) * 60 + PyDateTime_DATE_GET_MINUTE(object);
    const std::int64_t seconds = minutes * 60 + PyDateTime_DATE_GET_SECOND(object);
    return seconds * microseconds_per_second + PyDateTime_DATE_GET_MICROSECOND(object);
}

// A sum of days and minutes misses the second that it stands for by a rounding or two, which is a
// microsecond in our time and more in later centuries.
std::int64_t whole_second_near(std::int64_t microseconds, double days) noexcept {
    const double step = std::nextafter(std::abs(days), HUGE_VAL) - std::abs(days);
    const auto near = std::max<std::int64_t>(1, std::llround(step * microseconds_per_day));
    const std::int64_t second = (microseconds + microseconds_per_second / 2) /
                                microseconds_per_second * microseconds_per_second;
    return std::abs(microseconds - second) <= near ? second : microseconds;
}

}  // namespace

void import_datetime() {
    PyDateTime_IMPORT;
    if (PyDateTimeAPI == nullptr) {
        throw PythonError{};
    }
}

bool is_date(PyObject* object) noexcept {
    return PyDate_Check(object);
}

bool has_time_zone(PyObject* object) noexcept {
    return PyDateTime_Check(object) && PyDateTime_DATE_GET_TZINFO(object) != Py_None;
}

Date date_of_python(PyObject* object) noexcept {
    const std::chrono::year_month_day calendar{
        std::chrono::year{PyDateTime_GET_YEAR(object)},
        std::chrono::month{static_cast<unsigned>(PyDateTime_GET_MONTH(object))},
        std::chrono::day{static_cast<unsigned>(PyDateTime_GET_DAY(object))}};
    const auto day = static_cast<double>((std::chrono::sys_days{calendar} - day_zero).count());
    const double fraction = PyDateTime_Check(object)
                                ? static_cast<double>(microseconds_of_day(object)) /
                                      static_cast<double>(microseconds_per_day)
                                : 0.0;
    // Before day 0 the whole part counts backwards while the fraction still runs forwards.
    return {day < 0 ? day - fraction : day + fraction};
}

Owned date_to_python(Date date) {
    double day = std::trunc(date.days);
    std::int64_t microseconds = 0;
    if (std::isfinite(date.days)) {
        microseconds = std::llround(std::abs(date.days - day) * microseconds_per_day);
    }
    microseconds = whole_second_near(microseconds, date.days);
    if (microseconds == microseconds_per_day) {
        day += 1;
        microseconds = 0;
    }
    if (!(day >= first_day && day <= last_day)) {
        raise(RuntimeError::Overflow);
    }
    const std::chrono::year_month_day calendar{day_zero +
                                               std::chrono::days{static_cast<std::int64_t>(day)}};
    const auto seconds = static_cast<int>(microseconds / microseconds_per_second);
    return checked(PyDateTime_FromDateAndTime(
        static_cast<int>(calendar.year()),
        static_cast<int>(static_cast<unsigned>(calendar.month())),
        static_cast<int>(static_cast<unsigned>(calendar.day())), seconds / 3600, seconds / 60 % 60,
        seconds % 60, static_cast<int>(microseconds % microseconds_per_second)));
}

}  // namespace cvdeveloper::python
