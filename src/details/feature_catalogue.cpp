#include "cvdeveloper/details/feature_catalogue.h"

#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "details/catalogue.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t name_units = 20;
constexpr std::size_t sort_key_units = 10;
constexpr std::size_t group_units = 254;
constexpr std::int32_t white = 0xFFFFFF;
constexpr std::int32_t black = 0;

constexpr Parameter create_parameters[] = {
    {.name = "strMerkmalName", .help = "name, 20 characters", .default_value = ""},
    {.name = "strSortierung", .help = "sort key, 10 characters", .default_value = ""},
    {.name = "strNotiz", .help = "note", .default_value = ""},
    {.name = "strTableCommaList", .help = help::tables_argument, .default_value = ""},
    {.name = "strGruppe", .help = "group, 254 characters", .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 1850,
     .name = "MKM_New",
     .kind = OperationKind::Method,
     .binding = bind<&FeatureCatalogue::MKM_New>,
     .parameters = {},
     .help = {.what = "A new feature in use, not saved: fill it and pass it to MKM_Update.",
              .result = help::new_row_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads Mkm.",
              .example = "rs = app.MKM_New()"}},
    {.id = 1851,
     .name = "MKM_Create",
     .kind = OperationKind::Method,
     .binding = bind<&FeatureCatalogue::MKM_Create>,
     .parameters = create_parameters,
     .help = {.what = "Makes a feature, in use, black on white, and saves it. Longer texts are "
                      "cut.",
              .result = help::new_key_result,
              .errors = help::unknown_column_errors,
              .tables = "Reads and writes Mkm.",
              .example = "app.MKM_Create(\"Stammkunde\", strTableCommaList=\"ad,anf\")"}},
};

}  // namespace

std::span<const Operation> FeatureCatalogue::operations() noexcept {
    return rows;
}

RecordSet FeatureCatalogue::MKM_New() const {
    return new_active_entry(session(), "Mkm");
}

std::string FeatureCatalogue::MKM_Create(std::string_view strMerkmalName,
                                         std::string_view strSortierung, std::string_view strNotiz,
                                         std::string_view strTableCommaList,
                                         std::string_view strGruppe) const {
    return in_unit(session(), [&] {
        RecordSet rs = MKM_New();
        rs.set("Merkmal", first_units(strMerkmalName, name_units));
        rs.set("Sortierung", first_units(strSortierung, sort_key_units));
        rs.set("Notiz", strNotiz);
        rs.set("Gruppe", first_units(strGruppe, group_units));
        rs.set("BackColor", white);
        rs.set("FontColor", black);
        offer_to_tables(rs, strTableCommaList);
        return saved_key(session(), rs);
    });
}

}  // namespace cvdeveloper
