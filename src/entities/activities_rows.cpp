#include "cvdeveloper/entities/activities.h"
#include "data/help_texts.h"
#include "entities/activity_parameters.h"

namespace cvdeveloper {

namespace {

namespace argument = activity_parameter;

constexpr Parameter create_parameters[] = {
    argument::type,
    {.name = "strBetreff", .help = "subject, cut to 256 characters", .default_value = ""},
    {.name = "strNotiz", .help = "note", .default_value = ""},
    argument::done,
    argument::from,
    argument::until,
    argument::follow_up,
    argument::alarm,
    argument::deletion,
    argument::keyword_1,
    argument::keyword_2,
    argument::mask,
    argument::address_1,
    argument::address_2,
    argument::object,
    argument::request,
    argument::project,
    argument::case_file,
    argument::contract,
    {.name = "strDetailsDsn", .help = "key of the detail sheet", .default_value = ""},
    argument::root,
};
constexpr Parameter set_type_parameters[] = {
    {.name = "rsAkt",
     .help = "record set on the activity; what the host leaves there comes back",
     .direction = Direction::InOut},
    {.name = "rsAktArt", .help = "record set on the activity type", .direction = Direction::InOut},
};
constexpr Parameter set_type_by_key_parameters[] = {
    {.name = "strAktDsn", .help = "key of the activity"},
    {.name = "strAktArtDsn", .help = "key of the activity type"},
};

constexpr Operation rows[] = {
    {.id = 1050,
     .name = "AKT_New",
     .kind = OperationKind::Method,
     .binding = bind<&Activities::AKT_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved activity with its key, its human key, priority 1 and the "
                      "archive flag 0. Fill it and hand it to AKT_Update.",
              .result = "A record set of AKT on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads AKT (its columns) and Std (Kennung_AKT).",
              .example = "rs = app.AKT_New()"}},
    {.id = 1051,
     .name = "AKT_Create",
     .kind = OperationKind::Method,
     .binding = bind<&Activities::AKT_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new activity and gives it the user's standard features. The rights "
                      "are the user's standard ones. The defaults of the activity type are not "
                      "applied; AKT_SetAktArtByDsn does that. Empty keys and dates of 0 are "
                      "stored as null.",
              .result = "The new activity's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes AKT and AKTMKM; reads Benutzer and Std.",
              .example = "app.AKT_Create(strBetreff=\"Anruf\", strAdDsn1=ad)"}},
    {.id = 1052,
     .name = "AKT_SetAktArt",
     .kind = OperationKind::Method,
     .binding = bind<&Activities::AKT_SetAktArt, set_type_parameters>,
     .parameters = set_type_parameters,
     .help = {.what = "Copies the defaults of an activity type into an activity and saves it: done "
                      "flag, priority, kilometres, amount, recurrence; the follow-up date of an "
                      "open activity is its date plus the type's days and minutes, without a time "
                      "where the type has none (day 0 where it is done); the entry mask, where "
                      "both have one. Art_Dsn stays.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; 94 "
                        "\"Unzulässige Verwendung von Null\" for an open activity without date, "
                        "nothing is saved; the host's own errors.",
              .tables = "Writes AKT.",
              .example = "app.AKT_SetAktArt(rs, app.AKTART_FindByName(\"Anruf\"))"}},
    {.id = 1053,
     .name = "AKT_SetAktArtByDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Activities::AKT_SetAktArtByDsn>,
     .parameters = set_type_by_key_parameters,
     .help = {.what = "As AKT_SetAktArt, by the keys of activity and activity type.",
              .errors = "As AKT_SetAktArt; the record set's error where there is no such "
                        "activity or type.",
              .tables = "Writes AKT; reads Aktivitätenarten.",
              .example = "app.AKT_SetAktArtByDsn(akt, art)"}},
};

}  // namespace

std::span<const Operation> Activities::operations() noexcept {
    return rows;
}

}  // namespace cvdeveloper
