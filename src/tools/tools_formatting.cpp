#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/tools/tools.h"
#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper {
namespace {

constexpr char format_errors[] =
    "5 for fewer than -1 or more than 99 decimals and for options other than -2, -1 and 0.";

constexpr Parameter number_parameters[] = {
    {.name = "dblNumber", .help = "the number"},
    {.name = "NumDigitsAfterDecimal",
     .help = "decimals; -1 for as many as the regional settings say",
     .default_value = -1},
    {.name = "IncludeLeadingDigit",
     .help = "whether 0 stands before the decimal point: -1 yes, 0 no, -2 by the settings",
     .default_value = -2},
    {.name = "UseParensForNegativeNumbers",
     .help = "whether negatives are put in parentheses: -1 yes, 0 no, -2 by the settings",
     .default_value = -2},
    {.name = "GroupDigits",
     .help = "whether thousands are set apart: -1 yes, 0 no, -2 by the settings",
     .default_value = -2},
};
constexpr Parameter currency_parameters[] = {
    {.name = "dblWert", .help = "the amount"},
    {.name = "strCurrency",
     .help = "the currency; \"\" takes that of the master data",
     .default_value = ""},
    {.name = "lngPos",
     .help = "0 puts the currency before the amount, 1 behind it; with any other value it is left "
             "out",
     .default_value = 1},
};
constexpr Parameter date_parameters[] = {
    {.name = "datDate", .help = "date and time"},
    {.name = "NamedFormat",
     .help = "0 general date, 1 long date, 2 short date, 3 long time, 4 short time",
     .default_value = 0},
};

constexpr Operation rows[] = {
    {.id = 2,
     .name = "FormatCurrencyCV",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::FormatCurrencyCV>,
     .parameters = currency_parameters,
     .help = {.what = "Formats an amount as FormatNumber does and adds the currency, with a blank "
                      "between. Blanks at the ends are cut off.",
              .result = "A text such as \"1.234,50 EUR\".",
              .errors =
                  "Without strCurrency: 601 \"CVDeveloper wurde nicht initialisiert\" without "
                  "a session; the host's own errors.",
              .tables = "Without strCurrency reads Std (Währung).",
              .example = "tools.FormatCurrencyCV(1234.5, \"EUR\")"}},
    {.id = 3,
     .name = "FormatNumber",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::FormatNumber>,
     .parameters = number_parameters,
     .help = {.what = "Formats a number by the regional settings; German ones off Windows. "
                      "Midpoints are rounded away from zero.",
              .result = "A text such as \"1.234,50\".",
              .errors = format_errors,
              .example = "tools.FormatNumber(1234.5)"}},
    {.id = 4,
     .name = "FormatCurrency",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::FormatCurrency>,
     .parameters = number_parameters,
     .help = {.what = "Formats an amount in the currency of the regional settings; the euro off "
                      "Windows.",
              .result = "A text such as \"1.234,50 €\".",
              .errors = format_errors,
              .example = "tools.FormatCurrency(1234.5)"}},
    {.id = 5,
     .name = "FormatPercent",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::FormatPercent>,
     .parameters = number_parameters,
     .help = {.what = "Formats the hundredfold of a number with a percent sign.",
              .result = "A text such as \"12,34%\".",
              .errors = format_errors,
              .example = "tools.FormatPercent(0.1234)"}},
    {.id = 6,
     .name = "FormatDateTime",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::FormatDateTime>,
     .parameters = date_parameters,
     .help =
         {.what = "Formats date and time by the regional settings; German ones off Windows. "
                  "A general date leaves out midnight.",
          .result =
              "A text: \"15.11.2026 11:25:39\", \"Sonntag, 15. November 2026\", \"15.11.2026\", "
              "\"11:25:39\", \"11:25\".",
          .errors = "5 for another format.",
          .example = "tools.FormatDateTime(datetime.now(), 2)"}},
};

void check_option(std::int32_t option, std::string_view argument) {
    if (option < -2 || option > 0) {
        raise(RuntimeError::InvalidCall, argument);
    }
}

regional::NumberFormat checked_format(std::int32_t decimals, std::int32_t leading_digit,
                                      std::int32_t parentheses, std::int32_t grouping) {
    constexpr std::int32_t most_decimals = 99;
    if (decimals < -1 || decimals > most_decimals) {
        raise(RuntimeError::InvalidCall, "Argument NumDigitsAfterDecimal");
    }
    check_option(leading_digit, "Argument IncludeLeadingDigit");
    check_option(parentheses, "Argument UseParensForNegativeNumbers");
    check_option(grouping, "Argument GroupDigits");
    return {decimals, leading_digit, parentheses, grouping};
}

}  // namespace

std::span<const Operation> clsTools::formatting_rows() noexcept {
    return rows;
}

std::string clsTools::FormatCurrencyCV(double dblWert, std::string_view strCurrency,
                                       std::int32_t lngPos) {
    std::string currency(strCurrency);
    if (currency.empty()) {
        Variant value = Gateway{session()}.CV_STDRS().value("Währung");
        currency = value.is<Null>() ? std::string() : to_text(std::move(value));
    }
    std::string number = regional::format_number(dblWert, {});
    switch (lngPos) {
        case 0:
            return std::string(trim_blanks(currency + " " + number));
        case 1:
            return std::string(trim_blanks(number + " " + currency));
        default:
            return number;
    }
}

std::string clsTools::FormatNumber(double dblNumber, std::int32_t NumDigitsAfterDecimal,
                                   std::int32_t IncludeLeadingDigit,
                                   std::int32_t UseParensForNegativeNumbers,
                                   std::int32_t GroupDigits) {
    return regional::format_number(dblNumber,
                                   checked_format(NumDigitsAfterDecimal, IncludeLeadingDigit,
                                                  UseParensForNegativeNumbers, GroupDigits));
}

std::string clsTools::FormatCurrency(double dblNumber, std::int32_t NumDigitsAfterDecimal,
                                     std::int32_t IncludeLeadingDigit,
                                     std::int32_t UseParensForNegativeNumbers,
                                     std::int32_t GroupDigits) {
    return regional::format_currency(dblNumber,
                                     checked_format(NumDigitsAfterDecimal, IncludeLeadingDigit,
                                                    UseParensForNegativeNumbers, GroupDigits));
}

std::string clsTools::FormatPercent(double dblNumber, std::int32_t NumDigitsAfterDecimal,
                                    std::int32_t IncludeLeadingDigit,
                                    std::int32_t UseParensForNegativeNumbers,
                                    std::int32_t GroupDigits) {
    return regional::format_percent(dblNumber,
                                    checked_format(NumDigitsAfterDecimal, IncludeLeadingDigit,
                                                   UseParensForNegativeNumbers, GroupDigits));
}

std::string clsTools::FormatDateTime(Date datDate, std::int32_t NamedFormat) {
    if (NamedFormat < 0 || NamedFormat > static_cast<int>(regional::DateFormat::ShortTime)) {
        raise(RuntimeError::InvalidCall, "FormatDateTime, Argument NamedFormat");
    }
    return regional::format_date(datDate, static_cast<regional::DateFormat>(NamedFormat));
}

}  // namespace cvdeveloper
