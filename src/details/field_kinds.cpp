#include "cvdeveloper/details/field_kinds.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "details/catalogue.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t name_units = 25;
constexpr std::size_t sort_key_units = 10;
constexpr std::size_t rule_units = 40;
constexpr std::size_t format_units = 50;
constexpr std::size_t remark_units = 254;
constexpr std::size_t groups_units = 1000;

constexpr Parameter create_parameters[] = {
    {.name = "strFldArtKuerzel", .help = "short name, 25 characters", .default_value = ""},
    {.name = "enumFldArtTyp",
     .help = "what its values are",
     .default_value = std::int32_t{FLDARTTYP_TEXT}},
    {.name = "strSortierung", .help = "sort key, 10 characters", .default_value = ""},
    {.name = "strPlausibilitaet", .help = "plausibility rule, 40 characters", .default_value = ""},
    {.name = "strFormat", .help = "display format, 50 characters", .default_value = ""},
    {.name = "strNotiz", .help = "note", .default_value = ""},
    {.name = "strTableCommaList", .help = help::tables_argument, .default_value = ""},
    {.name = "strIntern", .help = "internal remark, 254 characters", .default_value = ""},
    {.name = "strGruppen", .help = "user groups, 1000 characters", .default_value = ""},
};
constexpr Parameter set_type_parameters[] = {
    {.name = "rsFldArt", .help = "record set on a field kind"},
    {.name = "enumTyp", .help = "what its values are"},
};
constexpr Parameter get_type_parameters[] = {
    {.name = "rsFldArt", .help = "record set on a field kind"},
};

constexpr Operation rows[] = {
    {.id = 2050,
     .name = "FldArt_New",
     .kind = OperationKind::Method,
     .binding = bind<&FieldKinds::FldArt_New>,
     .parameters = {},
     .help = {.what = "A new field kind in use, not saved: fill it and pass it to FldArt_Update.",
              .result = help::new_row_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads FldArt.",
              .example = "rs = app.FldArt_New()"}},
    {.id = 2051,
     .name = "FldArt_Create",
     .kind = OperationKind::Method,
     .binding = bind<&FieldKinds::FldArt_Create>,
     .parameters = create_parameters,
     .help = {.what = "Makes a field kind, in use, and saves it. Longer texts are cut.",
              .result = help::new_key_result,
              .errors = help::unknown_column_errors,
              .tables = "Reads and writes FldArt.",
              .example = "app.FldArt_Create(\"Zimmer\", cvdeveloper.FLDARTTYP_NUMMERISCH, "
                         "strTableCommaList=\"obj,anf\")"}},
    {.id = 2052,
     .name = "FldArt_SetTyp",
     .kind = OperationKind::Method,
     .binding = bind<&FieldKinds::FldArt_SetTyp>,
     .parameters = set_type_parameters,
     .help = {.what = "Sets what the values of a field kind are, in the current row; it is not "
                      "saved.",
              .errors = "The record set's own errors.",
              .example = "app.FldArt_SetTyp(rs, cvdeveloper.FLDARTTYP_DATUM)"}},
    {.id = 2053,
     .name = "FldArt_GetTyp",
     .kind = OperationKind::Method,
     .binding = bind<&FieldKinds::FldArt_GetTyp>,
     .parameters = get_type_parameters,
     .help = {.what = "What the values of a field kind are, from the current row.",
              .result = "A member of ENUM_FLDARTTYP.",
              .errors = "The record set's own errors; 94 where the column is null.",
              .example = "app.FldArt_GetTyp(rs) == cvdeveloper.FLDARTTYP_DATUM"}},
};

}  // namespace

std::span<const Operation> FieldKinds::operations() noexcept {
    return rows;
}

RecordSet FieldKinds::FldArt_New() const {
    return new_active_entry(session(), "FldArt");
}

std::string FieldKinds::FldArt_Create(std::string_view strFldArtKuerzel,
                                      ENUM_FLDARTTYP enumFldArtTyp, std::string_view strSortierung,
                                      std::string_view strPlausibilitaet,
                                      std::string_view strFormat, std::string_view strNotiz,
                                      std::string_view strTableCommaList,
                                      std::string_view strIntern,
                                      std::string_view strGruppen) const {
    return in_unit(session(), [&] {
        RecordSet rs = FldArt_New();
        rs.set("Kürzel", first_units(strFldArtKuerzel, name_units));
        FldArt_SetTyp(rs, enumFldArtTyp);
        rs.set("Sortierung", first_units(strSortierung, sort_key_units));
        rs.set("Plausibilität", first_units(strPlausibilitaet, rule_units));
        rs.set("Format", first_units(strFormat, format_units));
        rs.set("Notiz", strNotiz);
        rs.set("Intern", first_units(strIntern, remark_units));
        rs.set("Gruppen", first_units(strGruppen, groups_units));
        offer_to_tables(rs, strTableCommaList);
        return saved_key(session(), rs);
    });
}

void FieldKinds::FldArt_SetTyp(const RecordSet& rsFldArt, ENUM_FLDARTTYP enumTyp) const {
    rsFldArt.set("Typ", static_cast<std::int32_t>(enumTyp));
}

ENUM_FLDARTTYP FieldKinds::FldArt_GetTyp(const RecordSet& rsFldArt) const {
    return static_cast<ENUM_FLDARTTYP>(to_int32(rsFldArt.value("Typ")));
}

}  // namespace cvdeveloper
