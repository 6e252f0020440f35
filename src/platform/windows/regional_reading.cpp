#include "platform/regional.h"
#include "platform/windows/bstr.h"

namespace cvdeveloper::regional {
namespace {

// What the system's function makes of the text; nothing where it refuses.
template <class Value, class Function>
std::optional<Value> value_read(std::string_view text, Function function) {
    // The system would read no further than a zero.
    if (text.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    std::wstring units = to_utf16(text);
    Value value{};
    return SUCCEEDED(function(units.data(), &value)) ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<double> parse_number(std::string_view text) {
    return value_read<double>(text, [](wchar_t* units, double* number) {
        return VarR8FromStr(units, LOCALE_USER_DEFAULT, 0, number);
    });
}

std::optional<Date> parse_date(std::string_view text) {
    return value_read<Date>(text, [](wchar_t* units, Date* date) {
        return VarDateFromStr(units, LOCALE_USER_DEFAULT, 0, &date->days);
    });
}

std::optional<bool> parse_boolean(std::string_view text) {
    const auto flag = value_read<VARIANT_BOOL>(text, [](wchar_t* units, VARIANT_BOOL* value) {
        return VarBoolFromStr(units, LOCALE_USER_DEFAULT, VAR_LOCALBOOL, value);
    });
    return flag ? std::optional(*flag != VARIANT_FALSE) : std::nullopt;
}

}  // namespace cvdeveloper::regional
