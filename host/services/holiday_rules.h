#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/date.h"
#include "host/services/federal_states.h"

namespace cvdeveloper::standalone {

struct Holiday {
    Date day;
    std::string_view name;

    friend bool operator==(const Holiday&, const Holiday&) = default;
};

// Easter Sunday by the Gregorian rule.
Date easter_sunday(int year);

// The legal holidays of a year in the order of their days, of a federal state or those that all
// have in common. Today's rules hold for every year; days that only a single year had are among
// them, days that only some municipalities keep are not.
std::vector<Holiday> legal_holidays(int year, std::optional<FederalState> state);

}  // namespace cvdeveloper::standalone
