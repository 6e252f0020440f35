#pragma once

#include <cstdint>
#include <string>

#include "cvdeveloper/automation/variant.h"

namespace cvdeveloper {

// Automation conversions. Null is error 94, a text that is no such value error 13, a number out of
// range error 6. Texts of numbers, dates and truth values are in the regional form.
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

}  // namespace cvdeveloper
