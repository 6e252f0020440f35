// The system's own settings, which these tests expect to be German.
#include "platform/regional.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/clock.h"

namespace cvdeveloper::regional {
namespace {

// Changes one of the user's settings for a test's duration.
class Setting {
  public:
    Setting(LCTYPE which, const wchar_t* value) : which_(which) {
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, which, before_, 80);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, which, value);
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;
    ~Setting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, which_, before_); }

  private:
    LCTYPE which_;
    wchar_t before_[80] = {};
};

TEST(WindowsRegional, FormatsFollowTheUsersSettings) {
    const Setting decimal_sign(LOCALE_SDECIMAL, L"'");
    EXPECT_EQ(number_text(1.5), "1'5");
    EXPECT_EQ(format_number(1234.5, {}), "1.234'50");
}

TEST(WindowsRegional, AmountsFollowTheUsersCurrency) {
    const Setting symbol(LOCALE_SCURRENCY, L"CHF");
    const Setting order(LOCALE_ICURRENCY, L"2");
    EXPECT_EQ(format_currency(1234.5, {}), "CHF 1.234,50");
    EXPECT_EQ(format_currency(-1234.5, {.parentheses = -1}), "(CHF 1.234,50)");
    EXPECT_EQ(format_currency(-1234.5, {.parentheses = 0}), "-CHF 1.234,50");
}

TEST(WindowsRegional, AmountsTakeTheirOptions) {
    EXPECT_EQ(format_currency(0.5, {.leading_digit = 0}), ",50 €");
    EXPECT_EQ(format_currency(0.5, {.leading_digit = -1}), "0,50 €");
    EXPECT_EQ(format_currency(1234567.891, {.decimals = 0}), "1.234.568 €");
    EXPECT_EQ(format_currency(1234567.891, {.decimals = 4, .grouping = 0}), "1234567,8910 €");
    EXPECT_EQ(format_currency(1e21, {.decimals = 0}), "1.000.000.000.000.000.000.000 €");
    EXPECT_EQ(format_currency(0, {}), "0,00 €");
    EXPECT_EQ(format_currency(0.0001, {}), "0,00 €");
}

TEST(WindowsRegional, DatesFollowTheUsersSettings) {
    const Setting form(LOCALE_SSHORTDATE, L"yyyy/MM/dd");
    EXPECT_EQ(general_date(make_date({2026, 9, 1}, {8, 5, 3})), "2026/09/01 08:05:03");
    EXPECT_EQ(format_date(make_date({2026, 9, 1}), DateFormat::ShortDate), "2026/09/01");
}

TEST(WindowsRegional, GroupsNeedNotBeOfThree) {
    EXPECT_EQ(parse_number("1.5"), 15);
    EXPECT_EQ(parse_number("1.234,5"), 1234.5);
}

TEST(WindowsRegional, TextsThatAreNoneAreNothing) {
    for (const char* text : {"", " ", "abc", "12a", "--3", "E5", "()", "1e999"}) {
        EXPECT_EQ(parse_number(text), std::nullopt) << text;
    }
    EXPECT_EQ(parse_number(std::string_view("12\0x", 4)), std::nullopt);
    for (const char* text : {"", "abc", "32.01.2026", "29.02.2026", "11:60"}) {
        EXPECT_EQ(parse_date(text), std::nullopt) << text;
    }
    EXPECT_EQ(parse_boolean("ja"), std::nullopt);
}

TEST(WindowsRegional, DatesAndTruthValuesAreReadInTheUsersLanguage) {
    EXPECT_EQ(parse_date("1. September 2026"), make_date({2026, 9, 1}));
    EXPECT_EQ(parse_date("01.09.26"), make_date({2026, 9, 1}));
    EXPECT_EQ(boolean_text(true), "Wahr");
    EXPECT_EQ(parse_boolean("wahr"), true);
    EXPECT_EQ(parse_boolean("FALSCH"), false);
    EXPECT_EQ(parse_boolean("True"), true);
}

}  // namespace
}  // namespace cvdeveloper::regional
