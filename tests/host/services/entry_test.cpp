#include "host/services/entry.h"

#include <gtest/gtest.h>

namespace cvdeveloper::standalone::testing {
namespace {

struct NumberCase {
    const char* entry;
    NumberRange range;
};

TEST(EnteredNumbers, AreSingleValuesOrRanges) {
    constexpr NumberCase cases[] = {
        {"148,5", {148.5, 148.5}},
        {"1.234,50", {1234.5, 1234.5}},
        {"485.000 €", {485000, 485000}},
        {"-5", {-5, -5}},
        {" 100-200 ", {100, 200}},
        {"100 - 200", {100, 200}},
        {"100–200", {100, 200}},
        {"350.000,00 - 500.000,00", {350000, 500000}},
        {"2 - 3,5", {2, 3.5}},
        {"-5--3", {-5, -3}},
        {"-5 - 10", {-5, 10}},
        {"100 bis 200", {100, 200}},
        {"von 100 bis 200", {100, 200}},
        {"bis 300", {0, 300}},
        {"Bis  300", {0, 300}},
        {"ab 50", {50, 999999999}},
        {"7 - 7", {7, 7}},
    };
    for (const NumberCase& expected : cases) {
        EXPECT_EQ(read_numbers(expected.entry), expected.range) << expected.entry;
    }
}

TEST(EnteredNumbers, AreNothingWhereTheTextIsNone) {
    for (const char* entry : {"", "viel", "ca. 100", "200 - 100", "bis", "bis viel", "ab",
                              "ab 5 - 7", "- 100 -", "12:30", "120 m²"}) {
        EXPECT_EQ(read_numbers(entry), std::nullopt) << entry;
    }
}

TEST(EnteredNumbers, AreReadAsScriptsReadTheirTexts) {
    EXPECT_EQ(read_numbers("1.5"), (NumberRange{15, 15}));
    EXPECT_EQ(read_numbers("100 -"), (NumberRange{-100, -100}));
    EXPECT_EQ(read_numbers("5--3"), std::nullopt);
    EXPECT_EQ(read_numbers("-5--3"), (NumberRange{-5, -3}));
}

TEST(EnteredDates, AreSingleDaysOrRanges) {
    constexpr NumberCase cases[] = {
        {"01.09.2026", {46266, 46266}},
        {"2026-09-01", {46266, 46266}},
        {"1. September 2026", {46266, 46266}},
        {"01.07.2026 - 31.12.2026", {46204, 46387}},
        {"01.07.2026-31.12.2026", {46204, 46387}},
        {"2026-07-01 - 2026-12-31", {46204, 46387}},
        {"bis 31.12.2026", {0, 46387}},
        {"ab 01.09.2026", {46266, 2958465}},
        {"von 01.07.2026 bis 31.12.2026", {46204, 46387}},
    };
    for (const NumberCase& expected : cases) {
        EXPECT_EQ(read_dates(expected.entry), expected.range) << expected.entry;
    }
    for (const char* entry :
         {"", "sofort", "31.02.2026", "12:30", "ab sofort", "31.12.2026 - 01.07.2026"}) {
        EXPECT_EQ(read_dates(entry), std::nullopt) << entry;
    }
}

TEST(EnteredPostcodes, AreSingleOnesOrRanges) {
    const auto range = [](const char* from, const char* to) {
        return std::optional(TextRange{from, to});
    };
    EXPECT_EQ(read_postcodes("45020"), range("45020", "45020"));
    EXPECT_EQ(read_postcodes("45000 - 45030"), range("45000", "45030"));
    EXPECT_EQ(read_postcodes("45000-45030"), range("45000", "45030"));
    EXPECT_EQ(read_postcodes("45000 bis 45030"), range("45000", "45030"));
    EXPECT_EQ(read_postcodes("bis 45030"), range("0", "45030"));
    EXPECT_EQ(read_postcodes("ab 45000"), range("45000", "99999"));
    EXPECT_EQ(read_postcodes("A-1010"), range("A-1010", "A-1010"));
    EXPECT_EQ(read_postcodes("A-1010 - A-1090"), range("A-1010", "A-1090"));
    EXPECT_EQ(read_postcodes("SW1A 1AA"), range("SW1A 1AA", "SW1A 1AA"));
    for (const char* entry : {"", "Essen", "45030 - 45000", "45*", "rund um 45000 bis 45010"}) {
        EXPECT_EQ(read_postcodes(entry), std::nullopt) << entry;
    }
}

TEST(EnteredYesOrNo, TakesTheUsualWords) {
    for (const char* entry : {"Ja", "ja ", "J", "Wahr", "1"}) {
        EXPECT_EQ(read_yes_or_no(entry), true) << entry;
    }
    for (const char* entry : {"Nein", "NEIN", "n", "Falsch", "0"}) {
        EXPECT_EQ(read_yes_or_no(entry), false) << entry;
    }
    for (const char* entry : {"", "vielleicht", "2"}) {
        EXPECT_EQ(read_yes_or_no(entry), std::nullopt) << entry;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
