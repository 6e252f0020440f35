#include "cvdeveloper/tools/calendar.h"

#include <cmath>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/error.h"
#include "platform/clock.h"

namespace cvdeveloper {
namespace {

constexpr int sunday = 1;
constexpr int saturday = 7;

Date day_of(Date date) {
    return {std::trunc(date.days)};
}

bool has_time_of_day(Date date) {
    return date != day_of(date);
}

}  // namespace

std::string Calendar::IsFeiertag(Date datDate) const {
    try {
        ask_for_holiday(datDate);
    } catch (const AutomationError&) {
        return {};  // without the component no day is a holiday
    }
    return {};
}

bool Calendar::IsArbeitstag(Date datDate, bool blnFeiertag, bool blnSaturday,
                            bool blnSunday) const {
    switch (weekday(datDate)) {
        case sunday:
            return !blnSunday;
        case saturday:
            return !blnSaturday;
        default:
            return !blnFeiertag || IsFeiertag(datDate).empty();
    }
}

Variant Calendar::MoveDate(const Variant& varDate, Date datStartDate, Date datRefDate,
                           bool blnWochenende, bool blnFeiertag) const {
    const auto* date = varDate.get_if<Date>();
    if (date == nullptr) {
        return varDate;
    }
    // Counted in calendar days, walked in working days, never backwards.
    double distance = day_of(*date).days - day_of(datRefDate).days;
    Date current = has_time_of_day(*date) ? datStartDate : day_of(datStartDate);
    const auto is_working_day = [&] {
        return IsArbeitstag(current, blnFeiertag, blnWochenende, blnWochenende);
    };
    while (!is_working_day()) {
        current.days += 1;
    }
    while (distance >= 1) {
        current.days += 1;
        if (is_working_day()) {
            distance -= 1;
        }
    }
    return current;
}

// Every step is kept, as the component may count on being asked; nothing comes of the answer.
void Calendar::ask_for_holiday(Date date) const {
    const std::int32_t year = calendar_date(date).year;
    auto found = session().holidays.find(year);
    if (found == session().holidays.end()) {
        host::Bound<host::LegalHolidays> holidays(create_object("clqexstdc10.cLegalHolidays"));
        if (!holidays) {
            return;
        }
        found = session().holidays.emplace(year, std::move(holidays)).first;
        found->second->Eintragen(year);
    }
    host::LegalHolidays& holidays = *found->second;
    const Date day = day_of(date);
    const std::int32_t count = holidays.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        if (holidays.Day(i) == day) {
            static_cast<void>(holidays.Description(i));
            return;
        }
    }
}

}  // namespace cvdeveloper
