#include "cvdeveloper/entities/property_objects.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t designation_units = 254;

constexpr Parameter create_parameters[] = {
    {.name = "strIntern",
     .help = "internal designation, cut to 254 characters",
     .default_value = ""},
    {.name = "enumEART",
     .help = "EART_KAUF, EART_MIETE or EART_KAUFMIETE",
     .default_value = std::int32_t{EART_KAUF}},
    record_parameter::mask,
    {.name = "strAnbieterAdDsn", .help = "key of the provider's address", .default_value = ""},
    {.name = "strAuftragsende",
     .help = "end of the mandate, a date as text; \"\" for none",
     .default_value = ""},
    record_parameter::note,
    {.name = "intAbteilung", .help = "number of the department", .default_value = 0},
};

constexpr Operation rows[] = {
    {.id = 1150,
     .name = "OBJ_New",
     .kind = OperationKind::Method,
     .binding = bind<&PropertyObjects::OBJ_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved property object with its key, its human key, active, "
                      "priority 1 and the archive flag 0. Fill it and hand it to OBJ_Update.",
              .result = "A record set of OBJ on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads OBJ (its columns) and Std (Kennung_OBJ).",
              .example = "rs = app.OBJ_New()"}},
    {.id = 1151,
     .name = "OBJ_Create",
     .kind = OperationKind::Method,
     .binding = bind<&PropertyObjects::OBJ_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new property object and gives it the user's standard features. The "
                      "rights are the user's standard ones. Empty keys are stored as null.",
              .result = "The new object's key.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; 13 "
                        "\"Typen unverträglich\" for an end of the mandate that is no date, "
                        "nothing is saved; the host's own errors.",
              .tables = "Writes OBJ and OBJMKM; reads Benutzer and Std.",
              .example = "app.OBJ_Create(\"Villa am Park\", strAuftragsende=\"31.12.2026\")"}},
};

}  // namespace

std::span<const Operation> PropertyObjects::operations() noexcept {
    return rows;
}

RecordSet PropertyObjects::OBJ_New() const {
    RecordSet rs = new_coded_record(session(), "OBJ");
    rs.set("Aktiv", std::int16_t{1});
    rs.set("Priorität", std::int16_t{1});
    rs.set("FARCHIV", std::int16_t{0});
    return rs;
}

std::string PropertyObjects::OBJ_Create(std::string_view strIntern, ENUM_EART enumEART,
                                        std::string_view strEmskDsn,
                                        std::string_view strAnbieterAdDsn,
                                        std::string_view strAuftragsende, std::string_view strNotiz,
                                        std::int32_t intAbteilung) const {
    return in_unit(session(), [&] {
        RecordSet rs = OBJ_New();
        host::Util& util = session().util();
        rs.set("Intern", cut_text(strIntern, designation_units));
        rs.set("EART", std::int32_t{enumEART});
        rs.set("EMSK_DSN", util.SqlStrNull(strEmskDsn));
        rs.set("AD_ANBIETER_DSN", util.SqlStrNull(strAnbieterAdDsn));
        if (!strAuftragsende.empty()) {
            rs.set("Auftragsende", to_date(strAuftragsende));
        }
        rs.set("Notiz", strNotiz);
        rs.set("Abteilung", intAbteilung);
        return create_record(session(), "OBJ", rs);
    });
}

}  // namespace cvdeveloper
