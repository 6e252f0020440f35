#pragma once

#include <compare>

namespace cvdeveloper {

// Local time as days since 1899-12-30; the fraction is the time of day.
struct Date {
    double days = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): no pointer is compared here.
    friend constexpr auto operator<=>(const Date&, const Date&) = default;
};

}  // namespace cvdeveloper
