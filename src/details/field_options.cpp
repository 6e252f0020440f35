#include "cvdeveloper/details/field_options.h"

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "details/catalogue.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t text_units = 250;
constexpr std::size_t value_units = 30;
constexpr std::size_t short_form_units = 7;

constexpr Parameter create_parameters[] = {
    {.name = "strFldArtOpBezeichnung", .help = "the option's text, 250 characters"},
    {.name = "strFldArtDsn", .help = "key of the field kind that it belongs to"},
    {.name = "strWert", .help = "the option's value, 30 characters", .default_value = ""},
    {.name = "strKurz", .help = "short form, 7 characters", .default_value = ""},
    {.name = "blnDefaultwert",
     .help = "whether it is the field kind's default; the flag of other options stays",
     .default_value = false},
};
constexpr Parameter find_parameters[] = {
    {.name = "strFldArtDsn", .help = "the field kind's key"},
};

constexpr Operation rows[] = {
    {.id = 2150,
     .name = "FldArtOp_New",
     .kind = OperationKind::Method,
     .binding = bind<&FieldOptions::FldArtOp_New>,
     .parameters = {},
     .help = {.what = "A new option, not saved: fill it and pass it to FldArtOp_Update.",
              .result = help::new_row_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads FldArtOp.",
              .example = "rs = app.FldArtOp_New()"}},
    {.id = 2151,
     .name = "FldArtOp_Create",
     .kind = OperationKind::Method,
     .binding = bind<&FieldOptions::FldArtOp_Create>,
     .parameters = create_parameters,
     .help = {.what = "Makes an option of a field kind and saves it. Longer texts are cut.",
              .result = help::new_key_result,
              .errors = "601 \"FldArt_Dsn ist ein Pflichtfeld\" without a field kind; 601 "
                        "\"CVDeveloper wurde nicht initialisiert\" without a session; the host's "
                        "own errors.",
              .tables = "Reads and writes FldArtOp.",
              .example = "app.FldArtOp_Create(\"Gasheizung\", fldart, \"1\", \"Gas\")"}},
    {.id = 2152,
     .name = "FldArtOp_FindByFldArt",
     .kind = OperationKind::Method,
     .binding = bind<&FieldOptions::FldArtOp_FindByFldArt>,
     .parameters = find_parameters,
     .help = {.what = "Finds all options of a field kind, ordered by their texts.",
              .result = help::record_set_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads FldArtOp.",
              .example = "app.FldArtOp_FindByFldArt(fldart)"}},
};

}  // namespace

std::span<const Operation> FieldOptions::operations() noexcept {
    return rows;
}

RecordSet FieldOptions::FldArtOp_New() const {
    return new_row(session(), "FldArtOp");
}

std::string FieldOptions::FldArtOp_Create(std::string_view strFldArtOpBezeichnung,
                                          std::string_view strFldArtDsn, std::string_view strWert,
                                          std::string_view strKurz, bool blnDefaultwert) const {
    return in_unit(session(), [&] {
        RecordSet rs = FldArtOp_New();
        rs.set("Bezeichnung", first_units(strFldArtOpBezeichnung, text_units));
        rs.set("Wert", first_units(strWert, value_units));
        rs.set("Kurz", first_units(strKurz, short_form_units));
        if (strFldArtDsn.empty()) {
            throw AutomationError(601, "FldArtOp_Create", "FldArt_Dsn ist ein Pflichtfeld");
        }
        rs.set("FldArt_Dsn", session().util().SqlStrNull(strFldArtDsn));
        rs.set("Defaultwert", flag_value(blnDefaultwert));
        return saved_key(session(), rs);
    });
}

RecordSet FieldOptions::FldArtOp_FindByFldArt(std::string_view strFldArtDsn) const {
    return TableOperations(session()).Sql_Find(
        "FldArtOp", "FldArt_Dsn = " + session().util().SqlUid(strFldArtDsn), "Bezeichnung");
}

}  // namespace cvdeveloper
