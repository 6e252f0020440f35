#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace cvdeveloper::standalone {

enum class FederalState : std::uint16_t {
    BadenWuerttemberg = 1U << 0U,
    Bayern = 1U << 1U,
    Berlin = 1U << 2U,
    Brandenburg = 1U << 3U,
    Bremen = 1U << 4U,
    Hamburg = 1U << 5U,
    Hessen = 1U << 6U,
    MecklenburgVorpommern = 1U << 7U,
    Niedersachsen = 1U << 8U,
    NordrheinWestfalen = 1U << 9U,
    RheinlandPfalz = 1U << 10U,
    Saarland = 1U << 11U,
    Sachsen = 1U << 12U,
    SachsenAnhalt = 1U << 13U,
    SchleswigHolstein = 1U << 14U,
    Thueringen = 1U << 15U,
};

// By name ("Nordrhein-Westfalen") or abbreviation ("NW", "NRW"), without regard to case.
std::optional<FederalState> federal_state(std::string_view text);
std::string_view name_of(FederalState state);

}  // namespace cvdeveloper::standalone
