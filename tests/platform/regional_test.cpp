#include "platform/regional.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/decimal.h"

namespace cvdeveloper::regional {
namespace {

TEST(Regional, NumberTextIsWrittenOutWhile15DigitsOnEitherSideSuffice) {
    const std::vector<std::pair<double, const char*>> table{
        {0, "0"},
        {-0.0, "0"},
        {1.5, "1,5"},
        {-0.25, "-0,25"},
        {1234.5, "1234,5"},
        {0.1 + 0.2, "0,3"},
        {1.0 / 3, "0,333333333333333"},
        {1.0 / 30, "3,33333333333333E-02"},
        {0.0001, "0,0001"},
        {0.00001, "0,00001"},
        {5e-15, "0,000000000000005"},
        {5e-16, "5E-16"},
        {1.2345678e-9, "1,2345678E-09"},
        {123456789012345.0, "123456789012345"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {1e20, "1E+20"},
        {-1.25e100, "-1,25E+100"},
        {std::numeric_limits<double>::infinity(), "1,#INF"},
        {-std::numeric_limits<double>::infinity(), "-1,#INF"},
    };
    for (const auto& [number, text] : table) {
        EXPECT_EQ(number_text(number), text);
    }
}

TEST(Regional, NumbersAreReadInTheGermanForm) {
    const std::vector<std::pair<const char*, double>> table{
        {"1.234,50", 1234.5}, {"1,5", 1.5},      {"-3", -3},         {"+3", 3},
        {"- 3", -3},          {"1,5E3", 1500},   {"1,5e-3", 0.0015}, {"1E+20", 1e20},
        {"  12  ", 12},       {",5", 0.5},       {"5,", 5},          {"1.234.567", 1234567},
        {"1234567", 1234567}, {"12,50 €", 12.5}, {"€ 12,50", 12.5},  {"-1.234,50 €", -1234.5},
        {"-€ 3", -3},         {"€ -3", -3},      {"(1,50)", -1.5},   {"(1,50 €)", -1.5},
        {"007", 7},
    };
    for (const auto& [text, number] : table) {
        EXPECT_EQ(parse_number(text), number) << text;
    }
}

TEST(Regional, PointsStandWhereTheyLikeBehindTheFirstDigit) {
    const std::vector<std::pair<const char*, double>> table{
        {"1.2.3", 123},
        {"1.5", 15},
        {"1.23,4", 123.4},
        {"1234.567", 1234567},
        {"1.234.5", 12345},
        {"1..2", 12},
        {"5.", 5},
        {"1.,5", 1.5},
        {"1.5E3", 15000},
        {"(1.5)", -15},
        {"15.11.2026", 15112026},
    };
    for (const auto& [text, number] : table) {
        EXPECT_EQ(parse_number(text), number) << text;
    }
    EXPECT_EQ(parse_number(".5"), std::nullopt);
}

TEST(Regional, SignsBracketsAndCurrencyStandOnEitherSide) {
    const std::vector<std::pair<const char*, double>> table{
        {"5-", -5},     {"5 -", -5},   {"5- ", -5},    {"5+", 5},    {"5 +", 5},   {"1,5-", -1.5},
        {"1E5-", -1e5}, {"-5€", -5},   {"-€5", -5},    {"€-5", -5},  {"€5-", -5},  {"5-€", -5},
        {"5€-", -5},    {"(5)", -5},   {"( 5 )", -5},  {"(€5)", -5}, {"(5€)", -5}, {"(5)€", -5},
        {"€(5)", -5},   {"5 € -", -5}, {"1E5 €", 1e5},
    };
    for (const auto& [text, number] : table) {
        EXPECT_EQ(parse_number(text), number) << text;
    }
}

TEST(Regional, NumbersMayHaveTheBaseSixteenOrEight) {
    const std::vector<std::pair<const char*, double>> table{
        {"&H10", 16},
        {"&h1f", 31},
        {" &HFF ", 255},
        {"&HFFFF", 65535},
        {"&H7FFFFFFF", 2147483647},
        {"&O17", 15},
        {"&o177777", 65535},
    };
    for (const auto& [text, number] : table) {
        EXPECT_EQ(parse_number(text), number) << text;
    }
    for (const char* text : {"&H", "&HG", "& H10", "&H-10", "&H1,5", "&O8", "&17", "0x10", "10H"}) {
        EXPECT_EQ(parse_number(text), std::nullopt) << text;
    }
}

TEST(Regional, WhiteSpaceAroundANumberIsNoPartOfIt) {
    EXPECT_EQ(parse_number("\t5\t"), 5);
    EXPECT_EQ(parse_number("\r\n5,5\n"), 5.5);
    EXPECT_EQ(parse_number("1 2"), std::nullopt);
    EXPECT_EQ(parse_number("1 E5"), std::nullopt);
}

TEST(Regional, NumbersTooSmallAreNoughtAndTooLargeAreNone) {
    EXPECT_EQ(parse_number("1e-999"), 0);
    EXPECT_EQ(parse_number("1e999"), std::nullopt);
}

TEST(Regional, NumberTextReadsBackAsTheNumber) {
    std::mt19937_64 random(20261115);
    std::uniform_int_distribution<std::int64_t> digits(-999'999'999'999'999, 999'999'999'999'999);
    std::uniform_int_distribution<int> exponent(-30, 30);
    for (int round = 0; round < 20'000; ++round) {
        const std::string plain =
            std::to_string(digits(random)) + "e" + std::to_string(exponent(random));
        const double number = std::stod(plain);
        const std::optional<double> read = parse_number(number_text(number));
        ASSERT_TRUE(read) << plain;
        ASSERT_DOUBLE_EQ(*read, number) << plain;
    }
}

TEST(Regional, FormattedNumbersReadBackAsTheRoundedNumber) {
    std::mt19937_64 random(7);
    std::uniform_int_distribution<std::int64_t> cents(-99'999'999'999, 99'999'999'999);
    for (int round = 0; round < 20'000; ++round) {
        const double number = static_cast<double>(cents(random)) / 100;
        for (const int grouping : {0, -1}) {
            for (const int parentheses : {0, -1}) {
                const NumberFormat format{.parentheses = parentheses, .grouping = grouping};
                ASSERT_EQ(parse_number(format_number(number, format)), number);
                ASSERT_EQ(parse_number(format_currency(number, format)), number);
            }
        }
    }
}

TEST(Regional, NumbersAreFormattedTheGermanWay) {
    EXPECT_EQ(format_number(1234.5, {}), "1.234,50");
    EXPECT_EQ(format_number(-1234.5, {}), "-1.234,50");
    EXPECT_EQ(format_number(0, {}), "0,00");
    EXPECT_EQ(format_number(999, {}), "999,00");
    EXPECT_EQ(format_number(1000000, {.decimals = 0}), "1.000.000");
    EXPECT_EQ(format_number(1e21, {}), "1.000.000.000.000.000.000.000,00");
    EXPECT_EQ(format_currency(1234.5, {}), "1.234,50 €");
    EXPECT_EQ(format_currency(-1234.5, {}), "-1.234,50 €");
    EXPECT_EQ(format_percent(0.1234, {}), "12,34%");
    EXPECT_EQ(format_percent(-2, {.decimals = 0}), "-200%");
}

TEST(Regional, MidpointsOfTheShortestTextAreRoundedAwayFromZero) {
    EXPECT_EQ(format_number(2.345, {}), "2,35");
    EXPECT_EQ(format_number(-2.345, {}), "-2,35");
    EXPECT_EQ(format_number(1.005, {}), "1,01");
    EXPECT_EQ(format_number(0.5, {.decimals = 0}), "1");
    EXPECT_EQ(format_number(2.5, {.decimals = 0}), "3");
    EXPECT_EQ(format_number(0.05, {.decimals = 1}), "0,1");
    EXPECT_EQ(format_number(0.049, {.decimals = 1}), "0,0");
    EXPECT_EQ(format_number(999.995, {}), "1.000,00");
    EXPECT_EQ(format_number(9.9999, {.decimals = 3}), "10,000");
    EXPECT_EQ(format_percent(0.00555, {}), "0,56%");
}

TEST(Regional, WhatRoundsToZeroHasNoSign) {
    EXPECT_EQ(format_number(-0.001, {}), "0,00");
    EXPECT_EQ(format_number(-0.001, {.parentheses = -1}), "0,00");
}

TEST(Regional, FormattingFollowsItsOptions) {
    EXPECT_EQ(format_number(0.5, {.leading_digit = 0}), ",50");
    EXPECT_EQ(format_number(-0.5, {.leading_digit = 0}), "-,50");
    EXPECT_EQ(format_number(-1234.5, {.parentheses = -1}), "(1.234,50)");
    EXPECT_EQ(format_currency(-1234.5, {.parentheses = -1}), "(1.234,50 €)");
    EXPECT_EQ(format_number(1234567.891, {.decimals = 4, .grouping = 0}), "1234567,8910");
    EXPECT_EQ(format_number(-0.1, {.decimals = 12}), "-0,100000000000");
    EXPECT_EQ(format_currency(1234.123456789012, {.decimals = 12}), "1.234,123456789012 €");
    EXPECT_EQ(format_percent(-2, {.decimals = 0, .parentheses = -1}), "(200%)");
}

TEST(Regional, DatesAreFormattedTheGermanWay) {
    const Date date = make_date({2026, 11, 15}, {11, 25, 39});
    EXPECT_EQ(format_date(date, DateFormat::General), "15.11.2026 11:25:39");
    EXPECT_EQ(format_date(date, DateFormat::LongDate), "Sonntag, 15. November 2026");
    EXPECT_EQ(format_date(date, DateFormat::ShortDate), "15.11.2026");
    EXPECT_EQ(format_date(date, DateFormat::LongTime), "11:25:39");
    EXPECT_EQ(format_date(date, DateFormat::ShortTime), "11:25");
    EXPECT_EQ(format_date(make_date({2026, 3, 2}), DateFormat::LongDate), "Montag, 2. März 2026");
}

TEST(Regional, AGeneralDateLeavesOutMidnightAndDayZero) {
    EXPECT_EQ(general_date(make_date({2026, 11, 15})), "15.11.2026");
    EXPECT_EQ(general_date(Date{0.5}), "12:00:00");
    EXPECT_EQ(general_date(Date{0}), "00:00:00");
}

TEST(Regional, GeneralAndLongDatesReadBackAsTheDate) {
    std::mt19937_64 random(3);
    std::uniform_int_distribution<int> days(-657434, 2958465);
    std::uniform_int_distribution<int> seconds(0, 86399);
    for (int round = 0; round < 20'000; ++round) {
        const int second = seconds(random);
        const CalendarDate day = calendar_date(Date{static_cast<double>(days(random))});
        const Date date = make_date(day, {second / 3600, second / 60 % 60, second % 60});
        // Years before 1000 are written with four digits, so they are not taken for short ones.
        const std::optional<Date> read = parse_date(general_date(date));
        ASSERT_TRUE(read) << general_date(date);
        ASSERT_NEAR(read->days, date.days, 1e-9) << general_date(date);
        if (day.year >= 1000) {
            ASSERT_EQ(parse_date(format_date(date, DateFormat::LongDate)), make_date(day));
        }
    }
}

}  // namespace
}  // namespace cvdeveloper::regional

namespace cvdeveloper {
namespace {

TEST(Decimal, TextMayOmitTheZeroBeforeThePoint) {
    EXPECT_EQ(decimal_text(0.5, '.', LeadingZero::Omitted), ".5");
    EXPECT_EQ(decimal_text(-0.05, '.', LeadingZero::Omitted), "-.05");
    EXPECT_EQ(decimal_text(1.5, '.', LeadingZero::Omitted), "1.5");
    EXPECT_EQ(decimal_text(0, '.', LeadingZero::Omitted), "0");
}

}  // namespace
}  // namespace cvdeveloper
