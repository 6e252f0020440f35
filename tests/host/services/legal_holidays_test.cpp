#include "host/services/legal_holidays.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/host_test.h"
#include "host/register.h"
#include "platform/clock.h"

namespace cvdeveloper::standalone::testing {
namespace {

// "25.12." of the holiday, or "" where the year has none of that name.
std::string day_of(int year, std::string_view name, std::string_view state = "") {
    for (const Holiday& holiday : legal_holidays(year, federal_state(state))) {
        if (holiday.name == name) {
            const CalendarDate date = calendar_date(holiday.day);
            EXPECT_EQ(date.year, year);
            return std::to_string(date.day) + "." + std::to_string(date.month) + ".";
        }
    }
    return "";
}

// Another way to the same day: full moon after the spring equinox by Clavius' epacts, then the
// Sunday after it.
Date easter_by_epact(int year) {
    const int golden = year % 19 + 1;
    const int century = year / 100 + 1;
    const int lost_leap_years = 3 * century / 4 - 12;
    const int moon = (8 * century + 5) / 25 - 5;
    const int sunday = 5 * year / 4 - lost_leap_years - 10;
    int epact = (11 * golden + 20 + moon - lost_leap_years) % 30;
    epact = (epact + 30) % 30;
    if ((epact == 25 && golden > 11) || epact == 24) {
        ++epact;
    }
    int full_moon = 44 - epact;
    if (full_moon < 21) {
        full_moon += 30;
    }
    const int day = full_moon + 7 - (sunday + full_moon) % 7;  // of March
    return {make_date({year, 3, 1}).days + day - 1};
}

TEST(LegalHolidays, EasterAgreesWithASecondFormulaInAllYears) {
    constexpr int sunday = 1;
    for (int year = 1900; year <= 2999; ++year) {
        const Date easter = easter_sunday(year);
        ASSERT_EQ(easter, easter_by_epact(year)) << year;
        ASSERT_EQ(weekday(easter), sunday) << year;
        ASSERT_GE(easter, make_date({year, 3, 22})) << year;
        ASSERT_LE(easter, make_date({year, 4, 25})) << year;
    }
}

TEST(LegalHolidays, EasterFallsOnItsKnownDays) {
    const std::vector<CalendarDate> known = {
        {1900, 4, 15}, {1913, 3, 23}, {1943, 4, 25}, {1954, 4, 18}, {1961, 4, 2},
        {1981, 4, 19}, {2000, 4, 23}, {2008, 3, 23}, {2011, 4, 24}, {2016, 3, 27},
        {2019, 4, 21}, {2020, 4, 12}, {2023, 4, 9},  {2024, 3, 31}, {2025, 4, 20},
        {2026, 4, 5},  {2027, 3, 28}, {2038, 4, 25}, {2049, 4, 18}, {2076, 4, 19}};
    for (const CalendarDate& date : known) {
        EXPECT_EQ(easter_sunday(date.year), make_date(date)) << date.year;
    }
}

struct Year {
    int year;
    std::string good_friday;
    std::string ascension;
    std::string whit_monday;
    std::string corpus_christi;
    std::string repentance_day;
};

TEST(LegalHolidays, MovingDaysOfTwelveYears) {
    const std::vector<Year> years = {{2008, "21.3.", "1.5.", "12.5.", "22.5.", "19.11."},
                                     {2011, "22.4.", "2.6.", "13.6.", "23.6.", "16.11."},
                                     {2015, "3.4.", "14.5.", "25.5.", "4.6.", "18.11."},
                                     {2016, "25.3.", "5.5.", "16.5.", "26.5.", "16.11."},
                                     {2018, "30.3.", "10.5.", "21.5.", "31.5.", "21.11."},
                                     {2019, "19.4.", "30.5.", "10.6.", "20.6.", "20.11."},
                                     {2020, "10.4.", "21.5.", "1.6.", "11.6.", "18.11."},
                                     {2021, "2.4.", "13.5.", "24.5.", "3.6.", "17.11."},
                                     {2022, "15.4.", "26.5.", "6.6.", "16.6.", "16.11."},
                                     {2023, "7.4.", "18.5.", "29.5.", "8.6.", "22.11."},
                                     {2024, "29.3.", "9.5.", "20.5.", "30.5.", "20.11."},
                                     {2026, "3.4.", "14.5.", "25.5.", "4.6.", "18.11."}};
    for (const Year& year : years) {
        SCOPED_TRACE(year.year);
        EXPECT_EQ(day_of(year.year, "Karfreitag"), year.good_friday);
        EXPECT_EQ(day_of(year.year, "Christi Himmelfahrt"), year.ascension);
        EXPECT_EQ(day_of(year.year, "Pfingstmontag"), year.whit_monday);
        EXPECT_EQ(day_of(year.year, "Fronleichnam", "Hessen"), year.corpus_christi);
        EXPECT_EQ(day_of(year.year, "Buß- und Bettag", "Sachsen"), year.repentance_day);
    }
}

TEST(LegalHolidays, NineAreCommonToAllStates) {
    std::vector<std::string> names;
    for (const Holiday& holiday : legal_holidays(2026, std::nullopt)) {
        names.emplace_back(holiday.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Neujahr", "Karfreitag", "Ostermontag",
                                               "Tag der Arbeit", "Christi Himmelfahrt",
                                               "Pfingstmontag", "Tag der Deutschen Einheit",
                                               "1. Weihnachtstag", "2. Weihnachtstag"}));
}

TEST(LegalHolidays, EachStateHasItsOwnNumberOfThem) {
    const std::vector<std::pair<std::string_view, std::size_t>> numbers = {
        {"BW", 12}, {"BY", 12}, {"BE", 10}, {"BB", 12}, {"HB", 10}, {"HH", 10},
        {"HE", 10}, {"MV", 11}, {"NI", 10}, {"NW", 11}, {"RP", 11}, {"SL", 12},
        {"SN", 11}, {"ST", 11}, {"SH", 10}, {"TH", 11}};
    for (const auto& [state, number] : numbers) {
        ASSERT_TRUE(federal_state(state)) << state;
        EXPECT_EQ(legal_holidays(2026, federal_state(state)).size(), number) << state;
    }
}

TEST(LegalHolidays, StatesKeepTheirOwnDays) {
    EXPECT_EQ(day_of(2026, "Heilige Drei Könige", "Baden-Württemberg"), "6.1.");
    EXPECT_EQ(day_of(2026, "Internationaler Frauentag", "Berlin"), "8.3.");
    EXPECT_EQ(day_of(2026, "Ostersonntag", "Brandenburg"), "5.4.");
    EXPECT_EQ(day_of(2026, "Mariä Himmelfahrt", "Saarland"), "15.8.");
    EXPECT_EQ(day_of(2026, "Weltkindertag", "thüringen"), "20.9.");
    EXPECT_EQ(day_of(2026, "Reformationstag", "Niedersachsen"), "31.10.");
    EXPECT_EQ(day_of(2026, "Reformationstag", "nrw"), "");
    EXPECT_EQ(day_of(2026, "Allerheiligen", "NRW"), "1.11.");
}

TEST(LegalHolidays, SomeDaysWereFreeOnce) {
    EXPECT_EQ(day_of(2017, "Reformationstag"), "31.10.");
    EXPECT_EQ(day_of(2017, "Reformationstag", "Bayern"), "31.10.");
    EXPECT_EQ(legal_holidays(2017, federal_state("Sachsen")).size(), 11U);
    EXPECT_EQ(day_of(2016, "Reformationstag"), "");
    EXPECT_EQ(day_of(2020, "75. Jahrestag der Befreiung", "Berlin"), "8.5.");
    EXPECT_EQ(day_of(2020, "75. Jahrestag der Befreiung"), "");
}

TEST(LegalHolidays, StandInTheOrderOfTheirDays) {
    for (int year = 1900; year <= 2999; ++year) {
        ASSERT_TRUE(std::ranges::is_sorted(legal_holidays(year, federal_state("Brandenburg")), {},
                                           &Holiday::day));
    }
}

class LegalHolidaysObject : public ::testing::Test {
  protected:
    Ref<LegalHolidays> holidays = make_object<LegalHolidays>();
};

TEST_F(LegalHolidaysObject, IsEmptyUntilAYearIsEntered) {
    EXPECT_EQ(holidays->Count(), 0);
    holidays->Eintragen(2026);
    EXPECT_EQ(holidays->Count(), 9);
    EXPECT_EQ(holidays->Day(1), make_date({2026, 1, 1}));
    EXPECT_EQ(holidays->Description(9), "2. Weihnachtstag");
    holidays->Eintragen(2027);
    EXPECT_EQ(holidays->Count(), 9);
    EXPECT_EQ(holidays->Day(2), make_date({2027, 3, 26}));
}

TEST_F(LegalHolidaysObject, RefusesOtherYearsAndNumbers) {
    for (const std::int32_t year : {1899, 3000, 0, -1}) {
        EXPECT_EQ(error_of([&] { holidays->Eintragen(year); }).number(), 5) << year;
    }
    holidays->Eintragen(1900);
    holidays->Eintragen(2999);
    for (const std::int32_t index : {0, 10, -1}) {
        EXPECT_EQ(error_of([&] { static_cast<void>(holidays->Day(index)); }).number(), 9);
        EXPECT_EQ(error_of([&] { static_cast<void>(holidays->Description(index)); }).number(), 9);
    }
}

TEST_F(LegalHolidaysObject, AnswersScriptsByNameAndTakesAnotherState) {
    holidays->call("Eintragen", std::int32_t{2026});
    holidays->put("Bundesland", "by");
    EXPECT_EQ(holidays->get("Bundesland"), Variant("Bayern"));
    EXPECT_EQ(holidays->get("Count"), Variant(std::int32_t{12}));
    EXPECT_EQ(holidays->call("Day", std::int32_t{2}), Variant(make_date({2026, 1, 6})));
    EXPECT_EQ(holidays->call("Description", std::int32_t{2}), Variant("Heilige Drei Könige"));
    EXPECT_EQ(error_of([&] { holidays->put("Bundesland", "Preußen"); }).number(), 5);
    holidays->put("Bundesland", "");
    EXPECT_EQ(holidays->get("Count"), Variant(std::int32_t{9}));
}

class RegisteredHolidays : public SampleTest {
  protected:
    RegisteredHolidays() { register_standalone_host(); }
    ~RegisteredHolidays() override { clear_registry(); }
};

TEST_F(RegisteredHolidays, AreThoseOfTheOfficeThatWasLoggedOnToLast) {
    EXPECT_EQ(create_object("clqexstdc10.cLegalHolidays")->get("Bundesland"), Variant(""));
    const ObjectRef by_name = create_object("CVConnector.Application");
    by_name->call("Logon", host_path(), "chef", "");
    const ObjectRef holidays = create_object("CLQEXSTDC10.CLEGALHOLIDAYS");
    EXPECT_EQ(holidays->get("Bundesland"), Variant("Nordrhein-Westfalen"));
    holidays->call("Eintragen", std::int32_t{2026});
    EXPECT_EQ(holidays->get("Count"), Variant(std::int32_t{11}));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
