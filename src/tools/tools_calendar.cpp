#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/tools/calendar.h"
#include "cvdeveloper/tools/tools.h"

namespace cvdeveloper {
namespace {

constexpr char component[] =
    "Component clqexstdc10.cLegalHolidays, one object a year, which the session keeps.";

// The flags are passed by reference in the interface and never changed.
constexpr Parameter move_parameters[] = {
    {.name = "varDate", .help = "the date to move; anything else comes back unchanged"},
    {.name = "datStartDate", .help = "the new start; gives the result its time of day"},
    {.name = "datRefDate", .help = "what varDate was set relative to"},
    {.name = "blnWochenende",
     .help = "whether Saturdays and Sundays are skipped; only read",
     .default_value = true,
     .direction = Direction::InOut},
    {.name = "blnFeiertag",
     .help = "whether the holiday component is asked; only read",
     .default_value = true,
     .direction = Direction::InOut},
};
constexpr Parameter working_day_parameters[] = {
    {.name = "datDate", .help = "the day; its time does not matter"},
    {.name = "blnFeiertag",
     .help = "whether the holiday component is asked from Monday to Friday; only read",
     .default_value = true,
     .direction = Direction::InOut},
    {.name = "blnSaturday",
     .help = "whether Saturdays are free; only read",
     .default_value = true,
     .direction = Direction::InOut},
    {.name = "blnSunday",
     .help = "whether Sundays are free; only read",
     .default_value = true,
     .direction = Direction::InOut},
};
constexpr Parameter date_parameters[] = {
    {.name = "datDate", .help = "the day; its time does not matter"}};

constexpr Operation rows[] = {
    {.id = 7,
     .name = "MoveDate",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::MoveDate, move_parameters>,
     .parameters = move_parameters,
     .help = {.what = "Carries a date over to a new start: the calendar days from datRefDate to "
                      "varDate are walked in working days from datStartDate on. The start itself "
                      "moves on to a working day first; a date on or before datRefDate gives just "
                      "that day. With a time of day in varDate the result has the start's time, "
                      "else it is at midnight.",
              .result = "A date; varDate itself where it holds no date.",
              .errors = "None of its own.",
              .tables = component,
              .example = "tools.MoveDate(datetime(2011, 1, 12), datetime(2011, 1, 14), "
                         "datetime(2011, 1, 10))"}},
    {.id = 8,
     .name = "IsArbeitstag",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::IsArbeitstag, working_day_parameters>,
     .parameters = working_day_parameters,
     .help = {.what = "Whether a day is a working day. Saturdays and Sundays go by their flags "
                      "alone; from Monday to Friday a holiday would count, but IsFeiertag never "
                      "tells of one.",
              .result = "True for a working day.",
              .errors = "None of its own.",
              .tables = component,
              .example = "tools.IsArbeitstag(datetime(2026, 11, 14))"}},
    {.id = 9,
     .name = "IsFeiertag",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::IsFeiertag>,
     .parameters = date_parameters,
     .help = {.what = "Asks the holiday component for the day. Its answer is not handed on.",
              .result = "Always \"\".",
              .errors = "None; failures are swallowed.",
              .tables = component,
              .example = "tools.IsFeiertag(datetime(2026, 12, 25))"}},
};

}  // namespace

std::span<const Operation> clsTools::calendar_rows() noexcept {
    return rows;
}

Variant clsTools::MoveDate(const Variant& varDate, Date datStartDate, Date datRefDate,
                           bool blnWochenende, bool blnFeiertag) {
    return Calendar(session()).MoveDate(varDate, datStartDate, datRefDate, blnWochenende,
                                        blnFeiertag);
}

bool clsTools::IsArbeitstag(Date datDate, bool blnFeiertag, bool blnSaturday, bool blnSunday) {
    return Calendar(session()).IsArbeitstag(datDate, blnFeiertag, blnSaturday, blnSunday);
}

std::string clsTools::IsFeiertag(Date datDate) {
    return Calendar(session()).IsFeiertag(datDate);
}

}  // namespace cvdeveloper
