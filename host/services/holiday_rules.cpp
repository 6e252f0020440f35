#include "host/services/holiday_rules.h"

#include <algorithm>
#include <cstdint>

#include "platform/clock.h"

namespace cvdeveloper::standalone {

namespace {

using enum FederalState;

constexpr std::uint16_t everywhere = 0xFFFF;

template <class... States>
constexpr std::uint16_t in(States... states) {
    return static_cast<std::uint16_t>((static_cast<unsigned>(states) | ...));
}

struct FixedDay {
    int month;
    int day;
    std::uint16_t states;
    std::string_view name;
};

constexpr FixedDay fixed_days[] = {
    {1, 1, everywhere, "Neujahr"},
    {1, 6, in(BadenWuerttemberg, Bayern, SachsenAnhalt), "Heilige Drei Könige"},
    {3, 8, in(Berlin, MecklenburgVorpommern), "Internationaler Frauentag"},
    {5, 1, everywhere, "Tag der Arbeit"},
    {8, 15, in(Saarland), "Mariä Himmelfahrt"},
    {9, 20, in(Thueringen), "Weltkindertag"},
    {10, 3, everywhere, "Tag der Deutschen Einheit"},
    {10, 31,
     in(Brandenburg, Bremen, Hamburg, MecklenburgVorpommern, Niedersachsen, Sachsen, SachsenAnhalt,
        SchleswigHolstein, Thueringen),
     "Reformationstag"},
    {11, 1, in(BadenWuerttemberg, Bayern, NordrheinWestfalen, RheinlandPfalz, Saarland),
     "Allerheiligen"},
    {12, 25, everywhere, "1. Weihnachtstag"},
    {12, 26, everywhere, "2. Weihnachtstag"},
};

struct EasterDay {
    int distance;  // in days after Easter Sunday
    std::uint16_t states;
    std::string_view name;
};

constexpr EasterDay easter_days[] = {
    {-2, everywhere, "Karfreitag"},
    {0, in(Brandenburg), "Ostersonntag"},
    {1, everywhere, "Ostermontag"},
    {39, everywhere, "Christi Himmelfahrt"},
    {49, in(Brandenburg), "Pfingstsonntag"},
    {50, everywhere, "Pfingstmontag"},
    {60, in(BadenWuerttemberg, Bayern, Hessen, NordrheinWestfalen, RheinlandPfalz, Saarland),
     "Fronleichnam"},
};

// Days that were, or will be, free once.
struct SingleDay {
    int year;
    FixedDay day;
};

constexpr SingleDay single_days[] = {
    {2017, {10, 31, everywhere, "Reformationstag"}},
    {2020, {5, 8, in(Berlin), "75. Jahrestag der Befreiung"}},
    {2025, {5, 8, in(Berlin), "80. Jahrestag der Befreiung"}},
    {2028, {6, 17, in(Berlin), "75. Jahrestag des Volksaufstandes in der DDR"}},
};

// The Wednesday before 23 November.
Date repentance_day(int year) {
    constexpr int wednesday = 4;
    const Date latest = make_date({year, 11, 22});
    return {latest.days - (weekday(latest) - wednesday + 7) % 7};
}

bool applies(std::uint16_t states, std::optional<FederalState> state) {
    return state ? (states & static_cast<std::uint16_t>(*state)) != 0 : states == everywhere;
}

}  // namespace

// Golden number, century, corrections for leap years and for the moon, as they are taught.
Date easter_sunday(int year) {
    const int a = year % 19;
    const int b = year / 100;
    const int c = year % 100;
    const int d = b / 4;
    const int e = b % 4;
    const int f = (b + 8) / 25;
    const int g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4;
    const int k = c % 4;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int days = h + l - 7 * m + 114;
    return make_date({year, days / 31, days % 31 + 1});
}

std::vector<Holiday> legal_holidays(int year, std::optional<FederalState> state) {
    std::vector<Holiday> holidays;
    const auto add = [&](Date day, std::uint16_t states, std::string_view name) {
        // A state may have as a rule what all others had once.
        if (applies(states, state) &&
            std::ranges::find(holidays, Holiday{day, name}) == holidays.end()) {
            holidays.push_back({day, name});
        }
    };
    for (const FixedDay& fixed : fixed_days) {
        add(make_date({year, fixed.month, fixed.day}), fixed.states, fixed.name);
    }
    for (const EasterDay& moving : easter_days) {
        add({easter_sunday(year).days + moving.distance}, moving.states, moving.name);
    }
    for (const auto& [in_year, day] : single_days) {
        if (in_year == year) {
            add(make_date({year, day.month, day.day}), day.states, day.name);
        }
    }
    add(repentance_day(year), in(Sachsen), "Buß- und Bettag");
    std::ranges::stable_sort(holidays, {}, &Holiday::day);
    return holidays;
}

}  // namespace cvdeveloper::standalone
