#pragma once

#include <chrono>

#include "cvdeveloper/automation/date.h"

namespace cvdeveloper {

// The present local date and time, to the second, as the runtime's Now.
Date now();
// A moment of the system's clock as local time.
Date local_date(std::chrono::sys_seconds moment);

// The calendar side of a Date. Day 0 is 1899-12-30.
struct CalendarDate {
    int year = 0;
    int month = 0;  // 1 to 12
    int day = 0;    // 1 to 31
};
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;
};
CalendarDate calendar_date(Date date);
// Rounded to the second; may belong to the next day, which calendar_date then gives too.
TimeOfDay time_of_day(Date date);
Date make_date(CalendarDate date, TimeOfDay time = {});
int weekday(Date date);  // Sunday 1 to Saturday 7

}  // namespace cvdeveloper
