// What is ours to say off Windows, where the system has no regional settings of the kind.
#include "platform/regional.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/object.h"
#include "platform/clock.h"
#include "support/expect_error.h"

namespace cvdeveloper::regional {
namespace {

TEST(GermanRegional, TextsThatAreNoNumberAreNothing) {
    for (const char* text :
         {"",           " ",      "abc", "12a",  ".5",    "1,2,3", "1,2.3", "--3",  "-5-",
          "+5-",        "-",      ",",   "€",    "€ 5 €", "1E",    "1E-",   "E5",   "1E5,5",
          "1E 5",       "1 2",    "()",  "(",    "(5",    "5)",    "(-3)",  "-(3)", "((3))",
          "1e999",      "-1e999", "&H",  "&HG",  "& H1",  "-&H1",  "&H-1",  "&H+1", "&H1,5",
          "&H80000000", "&O8",    "&17", "0x10", "5%",    "1'000", ".",     ".,5"}) {
        EXPECT_EQ(parse_number(text), std::nullopt) << text;
    }
}

TEST(GermanRegional, DatesAreReadAsAGermanSystemReadsThem) {
    const Date day = make_date({2026, 11, 15});
    const Date moment = make_date({2026, 11, 15}, {11, 25, 39});
    const int this_year = calendar_date(now()).year;
    const std::vector<std::pair<const char*, Date>> table{
        {"15.11.2026", day},
        {" 15.11.2026 ", day},
        {"15.11.26", day},
        {"1.2.2026", make_date({2026, 2, 1})},
        {"15.11.29", make_date({2029, 11, 15})},
        {"15.11.30", make_date({1930, 11, 15})},
        {"15.11.00", make_date({2000, 11, 15})},
        {"15/11/2026", day},
        {"15-11-2026", day},
        {"15.11.2026 11:25:39", moment},
        {"15.11.2026 11:25", make_date({2026, 11, 15}, {11, 25, 0})},
        {"15.11.26 11:25:39", moment},
        {"11:25", make_date({1899, 12, 30}, {11, 25, 0})},
        {"11:25:39", make_date({1899, 12, 30}, {11, 25, 39})},
        {"2026-11-15", day},
        {"2026-11-15 11:25:39", moment},
        {"15. November 2026", day},
        {"15. november 2026 11:25:39", moment},
        {"15 Nov. 2026", day},
        {"15-Nov-2026", day},
        {"2. März 2026", make_date({2026, 3, 2})},
        {"2. Mär 2026", make_date({2026, 3, 2})},
        {"Sonntag, 15. November 2026", day},
        {"So, 15.11.2026", day},
        {"15.11.", make_date({this_year, 11, 15})},
        {"15.11", make_date({this_year, 11, 15})},
        {"15.11. 11:25", make_date({this_year, 11, 15}, {11, 25, 0})},
        {"15. November", make_date({this_year, 11, 15})},
        {"29.02.2024", make_date({2024, 2, 29})},
    };
    for (const auto& [text, date] : table) {
        EXPECT_EQ(parse_date(text), date) << text;
    }
}

TEST(GermanRegional, TextsThatAreNoDateAreNothing) {
    for (const char* text : {"",
                             " ",
                             "abc",
                             "15",
                             "15.",
                             "15.13.2026",
                             "32.01.2026",
                             "0.1.2026",
                             "29.02.2026",
                             "31.04.2026",
                             "15.11.2026.",
                             "15.11.2026 25:00",
                             "15.11.2026 11",
                             "11:60",
                             "11:25:60",
                             "11:",
                             "24:00",
                             "2026-13-01",
                             "2026-11",
                             "15. Nevember 2026",
                             "15.11.20266",
                             "15.11.99 x",
                             "15/11/",
                             "115.11.2026",
                             "40000",
                             "1,5"}) {
        EXPECT_EQ(parse_date(text), std::nullopt) << text;
    }
}

// Windows looks for another order of day, month and year in some of them.
TEST(GermanRegional, ADayThatTheCalendarDoesNotHaveIsNoNumberOfDaysEither) {
    for (const char* text : {"31.02.26", "32.1.", "15.13"}) {
        expect_error_number(13, [&] { static_cast<void>(to_date(Variant(text))); });
    }
}

TEST(GermanRegional, TruthValuesAreGermanAndEnglishIsRead) {
    EXPECT_EQ(boolean_text(true), "Wahr");
    EXPECT_EQ(boolean_text(false), "Falsch");
    EXPECT_EQ(parse_boolean("wahr"), true);
    EXPECT_EQ(parse_boolean(" True "), true);
    EXPECT_EQ(parse_boolean("FALSCH"), false);
    EXPECT_EQ(parse_boolean("false"), false);
    EXPECT_EQ(parse_boolean("ja"), std::nullopt);
    EXPECT_EQ(parse_boolean(""), std::nullopt);
}

TEST(GermanRegional, NumberTextReadsBackAsExactlyTheNumber) {
    std::mt19937_64 random(20261115);
    std::uniform_int_distribution<std::int64_t> digits(-999'999'999'999'999, 999'999'999'999'999);
    std::uniform_int_distribution<int> exponent(-30, 30);
    for (int round = 0; round < 20'000; ++round) {
        const std::string plain =
            std::to_string(digits(random)) + "e" + std::to_string(exponent(random));
        const double number = std::stod(plain);
        ASSERT_EQ(parse_number(number_text(number)), number) << plain;
    }
}

TEST(GermanRegional, NumbersMayHaveAnExponentOfBasicsOwnLetter) {
    EXPECT_EQ(parse_number("1,5D3"), 1500);
    EXPECT_EQ(parse_number("25d-1"), 2.5);
}

TEST(GermanRegional, NumbersTooSmallAreNought) {
    EXPECT_EQ(parse_number("1e-99999999999999999999"), 0);
    EXPECT_EQ(parse_number("0," + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(parse_number("0," + std::string(400, '0') + "1e5"), 0);
    EXPECT_EQ(parse_number("1" + std::string(400, '0')), std::nullopt);
    EXPECT_EQ(parse_number("1" + std::string(400, '0') + "e-5"), std::nullopt);
    EXPECT_EQ(parse_number("1e99999999999999999999"), std::nullopt);
    EXPECT_EQ(parse_number("0e99999999999999999999"), 0);
}

TEST(GermanRegional, TheCurrencysNameIsReadToo) {
    EXPECT_EQ(parse_number("12,50EUR"), 12.5);
    EXPECT_EQ(parse_number("EUR 12"), 12);
}

TEST(GermanRegional, ShortYearsAreWrittenWithFourDigits) {
    EXPECT_EQ(format_date(make_date({123, 1, 2}), DateFormat::ShortDate), "02.01.0123");
}

}  // namespace
}  // namespace cvdeveloper::regional
