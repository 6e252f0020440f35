#include "platform/windows/currency.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/decimal.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::regional {
namespace {

UINT setting(LCTYPE which) {
    DWORD number = 0;
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, which | LOCALE_RETURN_NUMBER,
                    reinterpret_cast<wchar_t*>(&number), sizeof(number) / sizeof(wchar_t));
    return number;
}

std::wstring text_setting(LCTYPE which) {
    std::array<wchar_t, 80> text{};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, which, text.data(), static_cast<int>(text.size()));
    return text.data();
}

// "3;0", groups of three, is 3 for the formatter; "3;2;0", the last one repeated, is 32; "3", only
// one group, is 30.
UINT grouping() {
    UINT digits = 0;
    bool repeated = false;
    for (const wchar_t c : text_setting(LOCALE_SMONGROUPING)) {
        repeated = c == L'0';
        if (c >= L'1' && c <= L'9') {
            digits = digits * 10 + static_cast<UINT>(c - L'0');
        }
    }
    return repeated || digits == 0 ? digits : digits * 10;
}

// How a negative amount looks, by the place of the currency: before, behind, and both with a blank.
constexpr std::array<UINT, 4> orders_with_sign{1, 5, 9, 8};
constexpr std::array<UINT, 4> orders_with_parentheses{0, 4, 14, 15};

UINT negative_order(UINT positive_order, int parentheses) {
    if (parentheses == -2 || positive_order >= orders_with_sign.size()) {
        return setting(LOCALE_INEGCURR);
    }
    return parentheses == 0 ? orders_with_sign[positive_order]
                            : orders_with_parentheses[positive_order];
}

// "-1234.5", as the formatter reads numbers.
std::wstring plain_text(const Decimal& decimal) {
    std::wstring text = decimal.negative ? L"-" : L"";
    if (decimal.point <= 0) {
        text += L'0';
    }
    for (int place = std::min(decimal.point, 0);
         place < std::max(decimal.point, static_cast<int>(decimal.digits.size())); ++place) {
        if (place == decimal.point) {
            text += L'.';
        }
        const bool stored = place >= 0 && place < static_cast<int>(decimal.digits.size());
        text +=
            stored ? static_cast<wchar_t>(decimal.digits[static_cast<std::size_t>(place)]) : L'0';
    }
    return text;
}

}  // namespace

std::string currency_text(double number, const NumberFormat& format) {
    std::wstring point = text_setting(LOCALE_SMONDECIMALSEP);
    std::wstring separator = text_setting(LOCALE_SMONTHOUSANDSEP);
    std::wstring symbol = text_setting(LOCALE_SCURRENCY);
    const UINT positive_order = setting(LOCALE_ICURRENCY);
    CURRENCYFMTW settings{
        .NumDigits =
            format.decimals < 0 ? setting(LOCALE_ICURRDIGITS) : static_cast<UINT>(format.decimals),
        .LeadingZero = format.leading_digit == -2 ? setting(LOCALE_ILZERO)
                                                  : static_cast<UINT>(format.leading_digit != 0),
        .Grouping = format.grouping == 0 ? 0 : grouping(),
        .lpDecimalSep = point.data(),
        .lpThousandSep = separator.data(),
        .NegativeOrder = negative_order(positive_order, format.parentheses),
        .PositiveOrder = positive_order,
        .lpCurrencySymbol = symbol.data(),
    };
    // The formatter itself takes no more than nine decimals.
    Decimal decimal = shortest_decimal(number);
    decimal.round(static_cast<int>(settings.NumDigits));
    const std::wstring plain = plain_text(decimal);
    const auto format_into = [&](wchar_t* text, int size) {
        return GetCurrencyFormatEx(LOCALE_NAME_USER_DEFAULT, 0, plain.c_str(), &settings, text,
                                   size);
    };
    const int size = format_into(nullptr, 0);
    std::wstring text(static_cast<std::size_t>(std::max(size, 1)), L'\0');
    if (size <= 0 || format_into(text.data(), size) <= 0) {
        raise(RuntimeError::InvalidCall);
    }
    text.pop_back();
    return to_utf8(text);
}

}  // namespace cvdeveloper::regional
