#pragma once

#include <string>

#include "platform/regional.h"

namespace cvdeveloper::regional {

// A finite number as an amount of the user's currency.
std::string currency_text(double number, const NumberFormat& format);

}  // namespace cvdeveloper::regional
