#pragma once

#include <string>

namespace cvdeveloper {

// A finite number as decimal digits: 0.DIGITS times ten to the power of point. The digits begin
// and end with one that is not 0; zero has none.
struct Decimal {
    bool negative = false;
    std::string digits = {};
    int point = 0;

    // Rounds to so many decimals, a 5 away from zero.
    void round(int decimals);
};

// The shortest digits that read back as the number.
Decimal shortest_decimal(double number);

enum class LeadingZero : bool { Omitted, Written };

// The runtime's text of a number: at most 15 significant digits; written out while 15 digits
// before and 15 after the decimal point suffice, with an exponent otherwise.
std::string decimal_text(double number, char decimal_point, LeadingZero leading_zero);

}  // namespace cvdeveloper
