#include "cvdeveloper/entities/activity_types.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "entities/new_record.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t name_units = 50;
constexpr std::size_t short_name_units = 5;
constexpr std::size_t views_units = 50;

constexpr Parameter create_parameters[] = {
    {.name = "strAktivitaetenartName",
     .help = "the type's name, cut to 50 characters",
     .default_value = ""},
    {.name = "strKurz", .help = "short name, cut to 5 characters", .default_value = ""},
    {.name = "strNotiz", .help = "note", .default_value = ""},
    {.name = "strDefaultViews",
     .help = "views that list the type, cut to 50 characters",
     .default_value = ""},
    {.name = "dblVorlageInTagen", .help = "follow-up interval in days", .default_value = 0},
    {.name = "dblVorlageInMinuten",
     .help = "further follow-up interval, or duration, in minutes",
     .default_value = 0.0},
    {.name = "dblKosten", .help = "costs", .default_value = 0.0},
    {.name = "dblKilometer", .help = "kilometres", .default_value = 0.0},
    {.name = "intBackColor", .help = "background colour in the calendar", .default_value = 0},
    {.name = "intFontColor", .help = "text colour in the calendar", .default_value = 0},
    {.name = "blnOhneUhrzeit",
     .help = "activities of the type carry no time of day",
     .default_value = false},
    {.name = "blnInKalenderAnzeigen", .help = "shown in the calendar", .default_value = false},
    {.name = "blnAlsQuickAktAnzeigen",
     .help = "listed as a quick activity",
     .default_value = false},
    {.name = "blnErledigtNachAktCreate",
     .help = "a new activity of the type is done at once",
     .default_value = false},
    {.name = "blnAdressverknuepfungLoesen",
     .help = "the address link of an activity of the type is released",
     .default_value = false},
    {.name = "strDefEmskDsn", .help = "key of the default entry mask", .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 2250,
     .name = "AKTART_New",
     .kind = OperationKind::Method,
     .binding = bind<&ActivityTypes::AKTART_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved activity type with its key, active, priority 1. Fill it and "
                      "hand it to AKTART_Update.",
              .result = "A record set of Aktivitätenarten on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Aktivitätenarten (its columns).",
              .example = "rs = app.AKTART_New()"}},
    {.id = 2251,
     .name = "AKTART_Create",
     .kind = OperationKind::Method,
     .binding = bind<&ActivityTypes::AKTART_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new activity type. Flags are stored as 1 and 0.",
              .result = "The new type's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes Aktivitätenarten.",
              .example = "app.AKTART_Create(\"Besichtigung\", \"Bes\", dblVorlageInTagen=3)"}},
};

}  // namespace

std::span<const Operation> ActivityTypes::operations() noexcept {
    return rows;
}

RecordSet ActivityTypes::AKTART_New() const {
    RecordSet rs = new_row(session(), "Aktivitätenarten");
    rs.set("Aktiv", std::int16_t{1});
    rs.set("Priorität", std::int16_t{1});
    return rs;
}

std::string ActivityTypes::AKTART_Create(
    std::string_view strAktivitaetenartName, std::string_view strKurz, std::string_view strNotiz,
    std::string_view strDefaultViews, std::int32_t dblVorlageInTagen, double dblVorlageInMinuten,
    double dblKosten, double dblKilometer, std::int32_t intBackColor, std::int32_t intFontColor,
    bool blnOhneUhrzeit, bool blnInKalenderAnzeigen, bool blnAlsQuickAktAnzeigen,
    bool blnErledigtNachAktCreate, bool blnAdressverknuepfungLoesen,
    std::string_view strDefEmskDsn) const {
    return in_unit(session(), [&] {
        RecordSet rs = AKTART_New();
        rs.set("Name", cut_text(strAktivitaetenartName, name_units));
        rs.set("Kurz", cut_text(strKurz, short_name_units));
        rs.set("Notiz", strNotiz);
        rs.set("default_views", cut_text(strDefaultViews, views_units));
        rs.set("Vorlage", dblVorlageInTagen);
        rs.set("Minuten", dblVorlageInMinuten);
        rs.set("Kosten", dblKosten);
        rs.set("km", dblKilometer);
        rs.set("BackColor", intBackColor);
        rs.set("FontColor", intFontColor);
        rs.set("Ohne_Uhrzeit", flag_value(blnOhneUhrzeit));
        rs.set("Kalender", flag_value(blnInKalenderAnzeigen));
        rs.set("Quickakt", flag_value(blnAlsQuickAktAnzeigen));
        rs.set("Erledigt", flag_value(blnErledigtNachAktCreate));
        rs.set("Adlos", flag_value(blnAdressverknuepfungLoesen));
        rs.set("default_emsk_dsn", session().util().SqlStrNull(strDefEmskDsn));
        std::string key = to_text(rs.value("DSN"));
        Gateway(session()).CV_UpdateRecordset(rs);
        return key;
    });
}

}  // namespace cvdeveloper
