#include "cvdeveloper/entities/contracts.h"

#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t number_units = 50;
constexpr std::size_t designation_units = 40;

constexpr Parameter create_parameters[] = {
    {.name = "strVertragsnummer",
     .help = "the contract's number, cut to 50 characters",
     .default_value = ""},
    {.name = "strIntern",
     .help = "internal designation, cut to 40 characters",
     .default_value = ""},
    record_parameter::note,
    record_parameter::mask,
    {.name = "strAdNehmerDsn", .help = "key of the taker's address", .default_value = ""},
    {.name = "strAdGesellschaftDsn", .help = "key of the company's address", .default_value = ""},
    {.name = "strAdVermittlerDsn", .help = "key of the broker's address", .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 1550,
     .name = "VERTRAEGE_New",
     .kind = OperationKind::Method,
     .binding = bind<&Contracts::VERTRAEGE_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved contract with its key, its human key, active and the archive "
                      "flag 0. Fill it and hand it to VERTRAEGE_Update.",
              .result = "A record set of VERTRÄGE on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads VERTRÄGE (its columns) and Std (Kennung_VERTRÄGE).",
              .example = "rs = app.VERTRAEGE_New()"}},
    {.id = 1551,
     .name = "VERTRAEGE_Create",
     .kind = OperationKind::Method,
     .binding = bind<&Contracts::VERTRAEGE_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new contract and gives it the user's standard features. The rights "
                      "are the user's standard ones. Empty keys are stored as null.",
              .result = "The new contract's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes VERTRÄGE and VERTRÄGEMKM; reads Benutzer and Std.",
              .example = "app.VERTRAEGE_Create(\"V-2026-17\", strAdNehmerDsn=ad)"}},
};

}  // namespace

std::span<const Operation> Contracts::operations() noexcept {
    return rows;
}

RecordSet Contracts::VERTRAEGE_New() const {
    RecordSet rs = new_coded_record(session(), "VERTRÄGE");
    rs.set("Aktiv", std::int16_t{1});
    rs.set("FArchiv", std::int16_t{0});
    return rs;
}

std::string Contracts::VERTRAEGE_Create(std::string_view strVertragsnummer,
                                        std::string_view strIntern, std::string_view strNotiz,
                                        std::string_view strEmskDsn,
                                        std::string_view strAdNehmerDsn,
                                        std::string_view strAdGesellschaftDsn,
                                        std::string_view strAdVermittlerDsn) const {
    return in_unit(session(), [&] {
        RecordSet rs = VERTRAEGE_New();
        host::Util& util = session().util();
        rs.set("Vertragsnummer", cut_text(strVertragsnummer, number_units));
        rs.set("Intern", cut_text(strIntern, designation_units));
        rs.set("Notiz", strNotiz);
        rs.set("EMSK_Dsn", util.SqlStrNull(strEmskDsn));
        rs.set("AD_Nehmer_Dsn", util.SqlStrNull(strAdNehmerDsn));
        rs.set("AD_Gesellschaft_Dsn", util.SqlStrNull(strAdGesellschaftDsn));
        rs.set("AD_Vermittler_Dsn", util.SqlStrNull(strAdVermittlerDsn));
        return create_record(session(), "VERTRÄGE", rs);
    });
}

}  // namespace cvdeveloper
