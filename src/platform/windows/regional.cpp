#include "platform/regional.h"

#include <cmath>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/windows/bstr.h"
#include "platform/windows/currency.h"

namespace cvdeveloper::regional {
namespace {

void check(HRESULT result) {
    if (FAILED(result)) {
        raise(result == DISP_E_OVERFLOW ? RuntimeError::Overflow : RuntimeError::InvalidCall);
    }
}

VARIANT variant_of(double number) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_R8;
    value.dblVal = number;
    return value;
}

using Formatter = HRESULT STDAPICALLTYPE(VARIANT*, INT, INT, INT, INT, ULONG, BSTR*);

std::string formatted(Formatter& formatter, double number, const NumberFormat& format) {
    if (!std::isfinite(number)) {
        return number_text(number);
    }
    VARIANT value = variant_of(number);
    BSTR text = nullptr;
    check(formatter(&value, format.decimals, format.leading_digit, format.parentheses,
                    format.grouping, 0, &text));
    return take_text(text);
}

}  // namespace

std::string number_text(double number) {
    BSTR text = nullptr;
    check(VarBstrFromR8(number, LOCALE_USER_DEFAULT, 0, &text));
    return take_text(text);
}

std::string general_date(Date date) {
    BSTR text = nullptr;
    check(VarBstrFromDate(date.days, LOCALE_USER_DEFAULT, 0, &text));
    return take_text(text);
}

std::string boolean_text(bool value) {
    BSTR text = nullptr;
    check(VarBstrFromBool(value ? VARIANT_TRUE : VARIANT_FALSE, LOCALE_USER_DEFAULT, VAR_LOCALBOOL,
                          &text));
    return take_text(text);
}

std::string format_number(double number, const NumberFormat& format) {
    return formatted(VarFormatNumber, number, format);
}

std::string format_percent(double number, const NumberFormat& format) {
    return formatted(VarFormatPercent, number, format);
}

std::string format_currency(double number, const NumberFormat& format) {
    return std::isfinite(number) ? currency_text(number, format) : number_text(number);
}

std::string format_date(Date date, DateFormat format) {
    VARIANT value = variant_of(date.days);
    value.vt = VT_DATE;
    BSTR text = nullptr;
    check(VarFormatDateTime(&value, static_cast<INT>(format), 0, &text));
    return take_text(text);
}

}  // namespace cvdeveloper::regional
