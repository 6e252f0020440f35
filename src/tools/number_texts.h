#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/automation/variant.h"

namespace cvdeveloper {

// The runtime's Val: the number that the text begins with, "." as decimal point. Error 6 where it
// is too large.
double leading_number(std::string_view text);

// The runtime's Str: " 3", "-3", " .5"; a date's general text. Errors 13 and 94.
std::string signed_text(const Variant& number);

}  // namespace cvdeveloper
