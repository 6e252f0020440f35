#include "cvdeveloper/entities/projects.h"

#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t name_units = 50;
constexpr std::size_t keyword_units = 100;

constexpr Parameter create_parameters[] = {
    {.name = "strBezeichnung",
     .help = "the project's name, cut to 50 characters",
     .default_value = ""},
    record_parameter::note,
    {.name = "strStichwort", .help = "first keyword, cut to 100 characters", .default_value = ""},
    {.name = "strStichwort2", .help = "second keyword, cut to 100 characters", .default_value = ""},
    record_parameter::mask,
    {.name = "strRootProjekteDsn", .help = "key of the project above it", .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 1250,
     .name = "PROJEKTE_New",
     .kind = OperationKind::Method,
     .binding = bind<&Projects::PROJEKTE_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved project with its key, its human key and the archive flag 0. "
                      "Fill it and hand it to PROJEKTE_Update.",
              .result = "A record set of Projekte on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Projekte (its columns) and Std (Kennung_Projekte).",
              .example = "rs = app.PROJEKTE_New()"}},
    {.id = 1251,
     .name = "PROJEKTE_Create",
     .kind = OperationKind::Method,
     .binding = bind<&Projects::PROJEKTE_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new project and gives it the user's standard features. The rights "
                      "are the user's standard ones. Empty keys are stored as null.",
              .result = "The new project's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes Projekte and PROJEKTEMKM; reads Benutzer and Std.",
              .example = "app.PROJEKTE_Create(\"Neubau Rheinufer\", strStichwort=\"Neubau\")"}},
};

}  // namespace

std::span<const Operation> Projects::operations() noexcept {
    return rows;
}

RecordSet Projects::PROJEKTE_New() const {
    RecordSet rs = new_coded_record(session(), "Projekte");
    rs.set("FArchiv", std::int16_t{0});
    return rs;
}

std::string Projects::PROJEKTE_Create(std::string_view strBezeichnung, std::string_view strNotiz,
                                      std::string_view strStichwort, std::string_view strStichwort2,
                                      std::string_view strEmskDsn,
                                      std::string_view strRootProjekteDsn) const {
    return in_unit(session(), [&] {
        RecordSet rs = PROJEKTE_New();
        host::Util& util = session().util();
        rs.set("Bezeichnung", cut_text(strBezeichnung, name_units));
        rs.set("Notiz", strNotiz);
        rs.set("Stichwort", cut_text(strStichwort, keyword_units));
        rs.set("Stichwort2", cut_text(strStichwort2, keyword_units));
        rs.set("EMSK_Dsn", util.SqlStrNull(strEmskDsn));
        rs.set("Projekte_Dsn", util.SqlStrNull(strRootProjekteDsn));
        return create_record(session(), "Projekte", rs);
    });
}

}  // namespace cvdeveloper
