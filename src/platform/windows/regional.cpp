#include "platform/regional.h"

#include <array>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/decimal.h"
#include "platform/text.h"
#include "platform/windows/bstr.h"

namespace cvdeveloper::regional {
namespace {

void check(HRESULT result) {
    if (FAILED(result)) {
        raise(result == DISP_E_OVERFLOW ? RuntimeError::Overflow : RuntimeError::InvalidCall);
    }
}

}  // namespace

// The runtime's rule is the same everywhere; only the decimal sign is the user's.
std::string number_text(double number) {
    std::array<wchar_t, 8> decimal_sign{};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, decimal_sign.data(),
                    static_cast<int>(decimal_sign.size()));
    return replace_all(decimal_text(number, '.', LeadingZero::Written), ".",
                       to_utf8(decimal_sign.data()));
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

std::string format_date(Date date, DateFormat format) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_DATE;
    value.date = date.days;
    BSTR text = nullptr;
    check(VarFormatDateTime(&value, static_cast<INT>(format), 0, &text));
    return take_text(text);
}

}  // namespace cvdeveloper::regional
