#include <gtest/gtest.h>

#include "cvdeveloper/tools/tools.h"
#include "platform/clock.h"
#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

TEST(ToolsFormatting, NumbersTakeTheRegionalSettingsByDefault) {
    const Ref<clsTools> tools = make_object<clsTools>();
    EXPECT_EQ(tools->FormatNumber(1234.5), "1.234,50");
    EXPECT_EQ(tools->FormatNumber(1234.5, 0), "1.235");
    EXPECT_EQ(tools->FormatNumber(-0.5, 1, 0, -1, 0), "(,5)");
    EXPECT_EQ(tools->FormatCurrency(-1234.5), "-1.234,50 €");
    EXPECT_EQ(tools->FormatPercent(0.1234), "12,34%");
}

TEST(ToolsFormatting, DatesTakeTheNamedFormats) {
    const Ref<clsTools> tools = make_object<clsTools>();
    const Date date = make_date({2026, 11, 15}, {11, 25, 39});
    EXPECT_EQ(tools->FormatDateTime(date), "15.11.2026 11:25:39");
    EXPECT_EQ(tools->FormatDateTime(date, 1), "Sonntag, 15. November 2026");
    EXPECT_EQ(tools->FormatDateTime(date, 2), "15.11.2026");
    EXPECT_EQ(tools->FormatDateTime(date, 3), "11:25:39");
    EXPECT_EQ(tools->FormatDateTime(date, 4), "11:25");
}

TEST(ToolsFormatting, OptionsThatMeanNothingAreError5) {
    const Ref<clsTools> tools = make_object<clsTools>();
    expect_error(5, "",
                 "Ungültiger Prozeduraufruf oder ungültiges Argument (Argument "
                 "NumDigitsAfterDecimal)",
                 [&] { tools->FormatNumber(1, -2); });
    expect_error_number(5, [&] { tools->FormatNumber(1, 100); });
    expect_error_number(5, [&] { tools->FormatCurrency(1, 2, 1); });
    expect_error_number(5, [&] { tools->FormatPercent(1, 2, -1, -3); });
    expect_error_number(5, [&] { tools->FormatNumber(1, 2, -1, -1, 5); });
    expect_error_number(5, [&] { tools->FormatDateTime(Date{}, 5); });
    expect_error_number(5, [&] { tools->FormatDateTime(Date{}, -1); });
}

TEST(ToolsFormatting, TheCurrencyStandsWhereItIsAskedFor) {
    const Ref<clsTools> tools = make_object<clsTools>();
    EXPECT_EQ(tools->FormatCurrencyCV(1234.5, "EUR"), "1.234,50 EUR");
    EXPECT_EQ(tools->FormatCurrencyCV(1234.5, "€", 0), "€ 1.234,50");
    EXPECT_EQ(tools->FormatCurrencyCV(5, "EUR", 2), "5,00");
    EXPECT_EQ(tools->FormatCurrencyCV(5, " ", 1), "5,00");
}

TEST(ToolsFormatting, WithoutACurrencyTheMasterDataHaveIt) {
    RecordingHost host;
    const auto app = host.attached();
    const Ref<clsTools> tools = app->oTools();
    host.set_master_data({{"Währung", "EUR"}});
    EXPECT_EQ(tools->FormatCurrencyCV(1234.5), "1.234,50 EUR");
    EXPECT_EQ(host.log(), Lines{"STDRS"});
    host.set_master_data({{"Währung", Null{}}});
    EXPECT_EQ(tools->FormatCurrencyCV(1234.5), "1.234,50");
    EXPECT_EQ(tools->FormatCurrencyCV(1234.5, "", 0), "1.234,50");
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert",
                 [] { make_object<clsTools>()->FormatCurrencyCV(1); });
}

}  // namespace
}  // namespace cvdeveloper
