// Numbers, amounts and percentages for people. They are rounded here, a 5 away from zero as the
// runtime does it, and laid out by the system's own functions with the user's settings.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/decimal.h"
#include "platform/regional.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::regional {
namespace {

// The system's functions write no more decimals than that.
constexpr int most_decimals = 9;

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
UINT groups(LCTYPE which, int grouping) {
    if (grouping == 0) {
        return 0;
    }
    UINT digits = 0;
    bool repeated = false;
    for (const wchar_t c : text_setting(which)) {
        repeated = c == L'0';
        if (c >= L'1' && c <= L'9') {
            digits = digits * 10 + static_cast<UINT>(c - L'0');
        }
    }
    if (digits == 0) {
        return grouping == -1 ? 3 : 0;
    }
    return repeated ? digits : digits * 10;
}

UINT leading_zero(int leading_digit) {
    return leading_digit == -2 ? setting(LOCALE_ILZERO) : static_cast<UINT>(leading_digit != 0);
}

int decimals_of(const NumberFormat& format, LCTYPE standard) {
    return format.decimals < 0 ? static_cast<int>(setting(standard)) : format.decimals;
}

UINT negative_order_of_numbers(int parentheses) {
    constexpr UINT in_parentheses = 0;
    constexpr UINT with_sign = 1;
    const UINT order = setting(LOCALE_INEGNUMBER);
    if (parentheses == -1) {
        return in_parentheses;
    }
    return parentheses == 0 && order == in_parentheses ? with_sign : order;
}

// By the place of the currency: before, behind, and both with a blank.
UINT negative_order_of_amounts(UINT positive_order, int parentheses) {
    constexpr std::array<UINT, 4> with_sign{1, 5, 9, 8};
    constexpr std::array<UINT, 4> in_parentheses{0, 4, 14, 15};
    if (parentheses == -2 || positive_order >= with_sign.size()) {
        return setting(LOCALE_INEGCURR);
    }
    return parentheses == 0 ? with_sign[positive_order] : in_parentheses[positive_order];
}

wchar_t digit_at(const Decimal& decimal, int place) {
    const bool stored = place >= 0 && place < static_cast<int>(decimal.digits.size());
    return stored ? static_cast<wchar_t>(decimal.digits[static_cast<std::size_t>(place)]) : L'0';
}

// "-1234.5", as the system's functions read numbers.
std::wstring plain_text(const Decimal& decimal, int decimals) {
    std::wstring text = decimal.negative ? L"-" : L"";
    for (int place = std::min(decimal.point - 1, 0); place < decimal.point; ++place) {
        text += digit_at(decimal, place);
    }
    text += L'.';
    for (int place = 0; place < decimals; ++place) {
        text += digit_at(decimal, decimal.point + place);
    }
    return text;
}

// What the system writes by the function, which takes the number, a place and its size.
template <class Function>
std::wstring laid_out(Decimal decimal, int decimals, const Function& function) {
    decimal.round(decimals);
    const std::wstring plain = plain_text(decimal, std::min(decimals, most_decimals));
    const int size = function(plain.c_str(), nullptr, 0);
    std::wstring text(static_cast<std::size_t>(std::max(size, 1)), L'\0');
    if (size <= 0 || function(plain.c_str(), text.data(), size) <= 0) {
        raise(RuntimeError::InvalidCall);
    }
    text.pop_back();
    std::size_t last_digit = text.find_last_of(L"0123456789");
    for (int place = most_decimals; place < decimals; ++place) {
        text.insert(++last_digit, 1, digit_at(decimal, decimal.point + place));
    }
    return text;
}

std::wstring number_laid_out(const Decimal& decimal, const NumberFormat& format) {
    const int decimals = decimals_of(format, LOCALE_IDIGITS);
    std::wstring point = text_setting(LOCALE_SDECIMAL);
    std::wstring separator = text_setting(LOCALE_STHOUSAND);
    const NUMBERFMTW settings{
        .NumDigits = static_cast<UINT>(std::min(decimals, most_decimals)),
        .LeadingZero = leading_zero(format.leading_digit),
        .Grouping = groups(LOCALE_SGROUPING, format.grouping),
        .lpDecimalSep = point.data(),
        .lpThousandSep = separator.data(),
        .NegativeOrder = negative_order_of_numbers(format.parentheses),
    };
    return laid_out(decimal, decimals, [&](const wchar_t* plain, wchar_t* text, int size) {
        return GetNumberFormatEx(LOCALE_NAME_USER_DEFAULT, 0, plain, &settings, text, size);
    });
}

std::wstring amount_laid_out(const Decimal& decimal, const NumberFormat& format) {
    const int decimals = decimals_of(format, LOCALE_ICURRDIGITS);
    std::wstring point = text_setting(LOCALE_SMONDECIMALSEP);
    std::wstring separator = text_setting(LOCALE_SMONTHOUSANDSEP);
    std::wstring symbol = text_setting(LOCALE_SCURRENCY);
    const UINT positive_order = setting(LOCALE_ICURRENCY);
    const CURRENCYFMTW settings{
        .NumDigits = static_cast<UINT>(std::min(decimals, most_decimals)),
        .LeadingZero = leading_zero(format.leading_digit),
        .Grouping = groups(LOCALE_SMONGROUPING, format.grouping),
        .lpDecimalSep = point.data(),
        .lpThousandSep = separator.data(),
        .NegativeOrder = negative_order_of_amounts(positive_order, format.parentheses),
        .PositiveOrder = positive_order,
        .lpCurrencySymbol = symbol.data(),
    };
    return laid_out(decimal, decimals, [&](const wchar_t* plain, wchar_t* text, int size) {
        return GetCurrencyFormatEx(LOCALE_NAME_USER_DEFAULT, 0, plain, &settings, text, size);
    });
}

}  // namespace

std::string format_number(double number, const NumberFormat& format) {
    return std::isfinite(number) ? to_utf8(number_laid_out(shortest_decimal(number), format))
                                 : number_text(number);
}

std::string format_currency(double number, const NumberFormat& format) {
    return std::isfinite(number) ? to_utf8(amount_laid_out(shortest_decimal(number), format))
                                 : number_text(number);
}

std::string format_percent(double number, const NumberFormat& format) {
    if (!std::isfinite(number)) {
        return number_text(number);
    }
    Decimal hundredfold = shortest_decimal(number);
    hundredfold.point += hundredfold.digits.empty() ? 0 : 2;
    std::wstring text = number_laid_out(hundredfold, format);
    text.insert(text.ends_with(L')') ? text.size() - 1 : text.size(), 1, L'%');
    return to_utf8(text);
}

}  // namespace cvdeveloper::regional
