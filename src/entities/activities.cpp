#include "cvdeveloper/entities/activities.h"

#include <cmath>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/unit.h"
#include "entities/activity_facts.h"
#include "entities/new_record.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t subject_units = 256;

// When an open activity comes up again: its date plus the type's interval. Day 0 where that is no
// date of our time.
Date follow_up(Session& session, const RecordSet& activity, const RecordSet& type) {
    constexpr double minutes_per_day = 1440;
    constexpr double first_sensible_day = 100;
    host::Util& util = session.util();
    const double days = to_double(util.d(type.value("Vorlage")));
    const double minutes = to_double(util.d(type.value("Minuten")));
    const bool whole_day = to_boolean(util.b(type.value("Ohne_Uhrzeit")));
    double date = to_date(activity.value("Datum")).days + days + minutes / minutes_per_day;
    if (whole_day) {
        date = std::trunc(date);
    }
    return Date{date < first_sensible_day ? 0 : date};
}

}  // namespace

RecordSet Activities::AKT_New() const {
    RecordSet rs = new_coded_record(session(), "AKT");
    rs.set("Priorität", std::int16_t{1});
    rs.set("FArchiv", std::int16_t{0});
    return rs;
}

std::string Activities::AKT_Create(std::string_view strAktArtDsn, std::string_view strBetreff,
                                   std::string_view strNotiz, bool blnErledigt, Date dateDatum,
                                   Date dateDatumBis, Date dateDatumVorlage, Date dateDatumAlarm,
                                   Date dateLoeschdatum, std::string_view strStichwort1,
                                   std::string_view strStichwort2, std::string_view strEmskDsn,
                                   std::string_view strAdDsn1, std::string_view strAdDsn2,
                                   std::string_view strObjDsn, std::string_view strAnfDsn,
                                   std::string_view strProjekteDsn, std::string_view strAktenDsn,
                                   std::string_view strVertraegeDsn, std::string_view strDetailsDsn,
                                   std::string_view strRootAktDsn) const {
    return in_unit(session(), [&] {
        host::Util& util = session().util();
        RecordSet rs = AKT_New();
        rs.set("Art_Dsn", util.SqlStrNull(strAktArtDsn));
        rs.set("Subject", cut_text(strBetreff, subject_units));
        rs.set("Notiz", strNotiz);
        write_facts(session(), rs,
                    {.done = blnErledigt,
                     .from = dateDatum,
                     .until = dateDatumBis,
                     .follow_up = dateDatumVorlage,
                     .alarm = dateDatumAlarm,
                     .deletion = dateLoeschdatum,
                     .keyword_1 = strStichwort1,
                     .keyword_2 = strStichwort2,
                     .mask = strEmskDsn,
                     .address_1 = strAdDsn1,
                     .address_2 = strAdDsn2,
                     .object = strObjDsn,
                     .request = strAnfDsn,
                     .project = strProjekteDsn,
                     .case_file = strAktenDsn,
                     .contract = strVertraegeDsn});
        rs.set("Details_Dsn", util.SqlStrNull(strDetailsDsn));
        rs.set("Akt_Dsn", util.SqlStrNull(strRootAktDsn));
        return create_record(session(), "AKT", rs);
    });
}

void Activities::AKT_SetAktArt(RecordSet& rsAkt, const RecordSet& rsAktArt) const {
    host::Util& util = session().util();
    rsAkt.set("Erledigt", rsAktArt.value("Erledigt"));
    rsAkt.set("Priorität", rsAktArt.value("Priorität"));
    rsAkt.set("Km", rsAktArt.value("Km"));
    rsAkt.set("Betrag", rsAktArt.value("Kosten"));
    rsAkt.set("PeriodenArt", rsAktArt.value("PeriodenArt"));
    rsAkt.set("PeriodenIntervall", rsAktArt.value("PeriodenIntervall"));

    const bool done = to_boolean(util.b(rsAkt.value("Erledigt")));
    // Day 0 is stored as it is, not as null: the host tells the two apart.
    rsAkt.set("Vorlage", done ? Date{} : follow_up(session(), rsAkt, rsAktArt));

    const std::string mask = session().text(rsAkt.value("Emsk_Dsn"));
    const std::string type_mask = session().text(rsAktArt.value("Default_Emsk_Dsn"));
    if (!mask.empty() && !type_mask.empty()) {
        rsAkt.set("Emsk_Dsn", rsAktArt.value("Default_Emsk_Dsn"));
    }
    Gateway(session()).CV_UpdateRecordset(rsAkt);
}

void Activities::AKT_SetAktArtByDsn(std::string_view strAktDsn,
                                    std::string_view strAktArtDsn) const {
    const TableOperations tables(session());
    host::Util& util = session().util();
    RecordSet activity = tables.Sql_Find("AKT", "Dsn = " + util.SqlUid(strAktDsn));
    const RecordSet type =
        tables.Sql_Find("Aktivitätenarten", "Dsn = " + util.SqlUid(strAktArtDsn));
    AKT_SetAktArt(activity, type);
}

}  // namespace cvdeveloper
