#include "cvdeveloper/entities/case_files.h"

#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t title_units = 50;

constexpr Parameter create_parameters[] = {
    record_parameter::mask,
    record_parameter::note,
    {.name = "strRubrum",
     .help = "the case file's title, cut to 50 characters",
     .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 1450,
     .name = "AKTEN_New",
     .kind = OperationKind::Method,
     .binding = bind<&CaseFiles::AKTEN_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved case file with its key, its human key and the archive flag "
                      "0. Fill it and hand it to AKTEN_Update.",
              .result = "A record set of AKTEN on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads AKTEN (its columns) and Std (Kennung_AKTEN).",
              .example = "rs = app.AKTEN_New()"}},
    {.id = 1451,
     .name = "AKTEN_Create",
     .kind = OperationKind::Method,
     .binding = bind<&CaseFiles::AKTEN_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new case file and gives it the user's standard features. The "
                      "rights are the user's standard ones. An empty key is stored as null.",
              .result = "The new case file's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes AKTEN and AKTENMKM; reads Benutzer and Std.",
              .example = "app.AKTEN_Create(strRubrum=\"Verkauf Lindenallee 4\")"}},
};

}  // namespace

std::span<const Operation> CaseFiles::operations() noexcept {
    return rows;
}

RecordSet CaseFiles::AKTEN_New() const {
    RecordSet rs = new_coded_record(session(), "AKTEN");
    rs.set("FArchiv", std::int16_t{0});
    return rs;
}

std::string CaseFiles::AKTEN_Create(std::string_view strEmskDsn, std::string_view strNotiz,
                                    std::string_view strRubrum) const {
    return in_unit(session(), [&] {
        RecordSet rs = AKTEN_New();
        rs.set("EMSK_Dsn", session().util().SqlStrNull(strEmskDsn));
        rs.set("Notiz", strNotiz);
        rs.set("Rubrum", cut_text(strRubrum, title_units));
        return create_record(session(), "AKTEN", rs);
    });
}

}  // namespace cvdeveloper
