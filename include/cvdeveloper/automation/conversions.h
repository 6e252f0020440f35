#pragma once

#include <cstdint>
#include <string>

#include "cvdeveloper/automation/variant.h"

namespace cvdeveloper {

// Automation conversions. Null is error 94, a text that is no such value error 13, a number out of
// range error 6. Texts of numbers, dates and truth values are in the regional form.
// An object stands for the value of its default member.
std::string to_text(const Variant& value);
std::string to_text(Variant&& value);
// As joining texts takes a value: null is "".
std::string joined_text(Variant&& value);
bool to_boolean(const Variant& value);
std::int16_t to_int16(const Variant& value);
std::int32_t to_int32(const Variant& value);
double to_double(const Variant& value);
Date to_date(const Variant& value);
// Null and Empty are nothing; anything that is no object is error 13.
ObjectRef to_object(const Variant& value);
// An object's default member, and that one's if it is an object again; error 13 where there is
// none, or no end of them. Other values, and nothing, are what they are.
Variant plain_value(Variant value);

}  // namespace cvdeveloper
