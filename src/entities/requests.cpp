#include "cvdeveloper/entities/requests.h"

#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t free_text_units = 255;

constexpr Parameter create_parameters[] = {
    {.name = "strAdDsn", .help = "key of the address that looks", .default_value = ""},
    record_parameter::mask,
    record_parameter::note,
    {.name = "enumEART",
     .help = "EART_KAUF, EART_MIETE or EART_KAUFMIETE",
     .default_value = std::int32_t{EART_KAUF}},
    {.name = "lngAbteilung", .help = "number of the department", .default_value = 0},
    {.name = "strManuell",
     .help = "the request in the clerk's own words, cut to 255 characters",
     .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 1350,
     .name = "ANF_New",
     .kind = OperationKind::Method,
     .binding = bind<&Requests::ANF_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved request with its key, its human key, active, priority 1 and "
                      "the archive flag 0. Fill it and hand it to ANF_Update.",
              .result = "A record set of ANF on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads ANF (its columns) and Std (Kennung_ANF).",
              .example = "rs = app.ANF_New()"}},
    {.id = 1351,
     .name = "ANF_Create",
     .kind = OperationKind::Method,
     .binding = bind<&Requests::ANF_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new request and gives it the user's standard features. The rights "
                      "are the user's standard ones. Empty keys are stored as null.",
              .result = "The new request's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes ANF and ANFMKM; reads Benutzer and Std.",
              .example = "app.ANF_Create(ad, enumEART=cvdeveloper.EART_MIETE)"}},
};

}  // namespace

std::span<const Operation> Requests::operations() noexcept {
    return rows;
}

RecordSet Requests::ANF_New() const {
    RecordSet rs = new_coded_record(session(), "ANF");
    rs.set("Aktiv", std::int16_t{1});
    rs.set("Priorität", std::int16_t{1});
    rs.set("FArchiv", std::int16_t{0});
    return rs;
}

std::string Requests::ANF_Create(std::string_view strAdDsn, std::string_view strEmskDsn,
                                 std::string_view strNotiz, ENUM_EART enumEART,
                                 std::int32_t lngAbteilung, std::string_view strManuell) const {
    return in_unit(session(), [&] {
        RecordSet rs = ANF_New();
        host::Util& util = session().util();
        rs.set("AD_Dsn", util.SqlStrNull(strAdDsn));
        rs.set("EMSK_Dsn", util.SqlStrNull(strEmskDsn));
        rs.set("Notiz", strNotiz);
        rs.set("EART", std::int32_t{enumEART});
        rs.set("Abteilung", lngAbteilung);
        rs.set("Manuell", cut_text(strManuell, free_text_units));
        return create_record(session(), "ANF", rs);
    });
}

}  // namespace cvdeveloper
