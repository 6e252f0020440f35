#include "host/services/federal_states.h"

#include <algorithm>

#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

using enum FederalState;

struct Spelling {
    FederalState state;
    std::string_view name;
    std::string_view abbreviation;
};

constexpr Spelling spellings[] = {
    {BadenWuerttemberg, "Baden-Württemberg", "BW"},
    {Bayern, "Bayern", "BY"},
    {Berlin, "Berlin", "BE"},
    {Brandenburg, "Brandenburg", "BB"},
    {Bremen, "Bremen", "HB"},
    {Hamburg, "Hamburg", "HH"},
    {Hessen, "Hessen", "HE"},
    {MecklenburgVorpommern, "Mecklenburg-Vorpommern", "MV"},
    {Niedersachsen, "Niedersachsen", "NI"},
    {NordrheinWestfalen, "Nordrhein-Westfalen", "NW"},
    {NordrheinWestfalen, "Nordrhein-Westfalen", "NRW"},
    {RheinlandPfalz, "Rheinland-Pfalz", "RP"},
    {Saarland, "Saarland", "SL"},
    {Sachsen, "Sachsen", "SN"},
    {SachsenAnhalt, "Sachsen-Anhalt", "ST"},
    {SchleswigHolstein, "Schleswig-Holstein", "SH"},
    {Thueringen, "Thüringen", "TH"},
};

}  // namespace

std::optional<FederalState> federal_state(std::string_view text) {
    const auto* const found = std::ranges::find_if(spellings, [text](const Spelling& spelling) {
        return equal_ignoring_case(spelling.name, text) ||
               equal_ignoring_case(spelling.abbreviation, text);
    });
    return found == std::end(spellings) ? std::nullopt : std::optional(found->state);
}

std::string_view name_of(FederalState state) {
    return std::ranges::find(spellings, state, &Spelling::state)->name;
}

}  // namespace cvdeveloper::standalone
