#include "cvdeveloper/entities/detail_sheets.h"

#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t heading_units = 50;

constexpr Parameter create_parameters[] = {
    {.name = "strAdDsn", .help = "key of the address"},
    {.name = "strEmskDsn", .help = "key of the entry mask"},
    {.name = "strOberbegriff", .help = "heading, cut to 50 characters", .default_value = ""},
    record_parameter::note,
};

constexpr Operation rows[] = {
    {.id = 1750,
     .name = "Details_New",
     .kind = OperationKind::Method,
     .binding = bind<&DetailSheets::Details_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved detail sheet with its key and the archive flag 0; detail "
                      "sheets have no human key. Fill it and hand it to Details_Update.",
              .result = "A record set of Details on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Details (its columns).",
              .example = "rs = app.Details_New()"}},
    {.id = 1751,
     .name = "Details_Create",
     .kind = OperationKind::Method,
     .binding = bind<&DetailSheets::Details_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new detail sheet and gives it the user's standard features. The "
                      "rights are the user's standard ones. Empty keys are stored as null.",
              .result = "The new detail sheet's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes Details and DETAILSMKM; reads Benutzer.",
              .example = "app.Details_Create(ad, emsk, \"Finanzierung\")"}},
};

}  // namespace

std::span<const Operation> DetailSheets::operations() noexcept {
    return rows;
}

RecordSet DetailSheets::Details_New() const {
    RecordSet rs = new_row(session(), "Details");
    rs.set("FARCHIV", std::int16_t{0});
    return rs;
}

std::string DetailSheets::Details_Create(std::string_view strAdDsn, std::string_view strEmskDsn,
                                         std::string_view strOberbegriff,
                                         std::string_view strNotiz) const {
    return in_unit(session(), [&] {
        RecordSet rs = Details_New();
        host::Util& util = session().util();
        rs.set("Ad_Dsn", util.SqlStrNull(strAdDsn));
        rs.set("EMSK_DSN", util.SqlStrNull(strEmskDsn));
        rs.set("Oberbegriff", cut_text(strOberbegriff, heading_units));
        rs.set("Notiz", strNotiz);
        return create_record(session(), "Details", rs);
    });
}

}  // namespace cvdeveloper
