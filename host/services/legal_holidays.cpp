#include "host/services/legal_holidays.h"

#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper::standalone {

namespace {

constexpr std::int32_t first_year = 1900;
constexpr std::int32_t last_year = 2999;

constexpr Parameter year_parameters[] = {{.name = "Year", .help = "Ein Jahr von 1900 bis 2999"}};
constexpr Parameter index_parameters[] = {
    {.name = "Index", .help = "Nummer des Feiertags, von 1 bis Count"}};
constexpr Parameter state_parameters[] = {
    {.name = "Value",
     .help = "Name oder Kürzel (\"Bayern\", \"BY\"); \"\" für die bundesweiten Feiertage"}};

}  // namespace

void LegalHolidays::Eintragen(std::int32_t year) {
    if (year < first_year || year > last_year) {
        raise(RuntimeError::InvalidCall, "Eintragen, Jahr " + std::to_string(year));
    }
    holidays_ = legal_holidays(year, state_);
    year_ = year;
}

std::int32_t LegalHolidays::Count() {
    return static_cast<std::int32_t>(holidays_.size());
}

const Holiday& LegalHolidays::holiday(std::int32_t index) const {
    if (index < 1 || static_cast<std::size_t>(index) > holidays_.size()) {
        raise(RuntimeError::SubscriptOutOfRange, "Feiertag " + std::to_string(index));
    }
    return holidays_[static_cast<std::size_t>(index) - 1];
}

Date LegalHolidays::Day(std::int32_t index) {
    return holiday(index).day;
}

std::string LegalHolidays::Description(std::int32_t index) {
    return std::string(holiday(index).name);
}

std::string LegalHolidays::state() {
    return state_ ? std::string(name_of(*state_)) : std::string();
}

void LegalHolidays::set_state(std::string_view text) {
    const auto state = federal_state(text);
    if (!state && !text.empty()) {
        raise(RuntimeError::InvalidCall, "Bundesland " + std::string(text));
    }
    state_ = state;
    if (year_) {
        Eintragen(*year_);
    }
}

const InterfaceTable& LegalHolidays::table() const noexcept {
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "Eintragen",
         .kind = OperationKind::Method,
         .binding = bind<&LegalHolidays::Eintragen>,
         .parameters = year_parameters,
         .help = {.what = "Fills the list with the legal holidays of a year, in the order of their "
                          "days. Today's rules hold for every year; days that were free in one "
                          "year only, such as 31 October 2017, are in the list. Days that only "
                          "some municipalities keep are not.",
                  .errors = "5 for a year before 1900 or after 2999.",
                  .example = "holidays.Eintragen(2026)"}},
        {.id = 2,
         .name = "Count",
         .kind = OperationKind::Get,
         .binding = bind<&LegalHolidays::Count>,
         .parameters = {},
         .help = {.what = "The number of holidays in the list; 0 before a year was entered.",
                  .example = "range(1, holidays.Count + 1)"}},
        {.id = 3,
         .name = "Day",
         .kind = OperationKind::Method,
         .binding = bind<&LegalHolidays::Day>,
         .parameters = index_parameters,
         .help = {.what = "The date of a holiday.",
                  .result = "The date without time of day.",
                  .errors = "9 for a number that is not in the list.",
                  .example = "holidays.Day(1)"}},
        {.id = 4,
         .name = "Description",
         .kind = OperationKind::Method,
         .binding = bind<&LegalHolidays::Description>,
         .parameters = index_parameters,
         .help = {.what = "The German name of a holiday.",
                  .errors = "9 for a number that is not in the list.",
                  .example = "holidays.Description(1)"}},
        {.id = 5,
         .name = "Bundesland",
         .kind = OperationKind::Get,
         .binding = bind<&LegalHolidays::state>,
         .parameters = {},
         .help = {.what = "The federal state whose holidays are listed; \"\" for those that all "
                          "states have in common. At first that of the office (Std.Bundesland) "
                          "that this program logged on to last.",
                  .tables = "Std",
                  .example = "holidays.Bundesland"}},
        {.id = 5,
         .name = "Bundesland",
         .kind = OperationKind::Put,
         .binding = bind<&LegalHolidays::set_state>,
         .parameters = state_parameters,
         .help = {.what = "Lists the holidays of another federal state, of the year entered last.",
                  .errors = "5 for a federal state that does not exist.",
                  .example = "holidays.Bundesland = \"Bayern\""}},
    };
    static const InterfaceTable members("clqexstdc10.cLegalHolidays",
                                        "The legal holidays of a year.",
                                        {{"legal_holidays", "Legal holidays.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
