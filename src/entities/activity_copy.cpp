#include "cvdeveloper/entities/activity_copy.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/unit.h"
#include "cvdeveloper/details/detail_values.h"
#include "cvdeveloper/details/features.h"
#include "cvdeveloper/entities/attachments.h"
#include "cvdeveloper/entities/master_data.h"
#include "cvdeveloper/tools/calendar.h"
#include "data/help_texts.h"
#include "platform/clock.h"

namespace cvdeveloper {

namespace {

constexpr Parameter copy_parameters[] = {
    {.name = "rsAkt",
     .help = "activities; copied from the current row to the end, where it is left"},
    {.name = "strUserDsn",
     .help = "key of the user who made and last changed the copies, now; \"\" keeps what is "
             "copied",
     .default_value = ""},
    {.name = "strProjekteDsn",
     .help = "key of the copies' project; \"\" keeps what is copied",
     .default_value = ""},
    {.name = "datStartDate",
     .help = "start of the copies; 0 keeps the dates; only read",
     .default_value = Date{},
     .direction = Direction::InOut},
    {.name = "datRefDate",
     .help = "day of the originals that the start stands for; 0 keeps the dates; only read",
     .default_value = Date{},
     .direction = Direction::InOut},
    {.name = "blnWochenende",
     .help = "moved dates leave weekends out; only read",
     .default_value = true,
     .direction = Direction::InOut},
    {.name = "blnFeiertag",
     .help = "the holiday component is asked, which never makes a day free; only read",
     .default_value = true,
     .direction = Direction::InOut},
};

constexpr Operation rows[] = {
    {.id = 1055,
     .name = "AKT_Copy",
     .kind = OperationKind::Method,
     .binding = bind<&ActivityCopy::AKT_Copy, copy_parameters>,
     .parameters = copy_parameters,
     .help = {.what = "Copies activities with their features, attachments and detail values. "
                      "Parents among them are the copies, others stay. With both dates given, "
                      "the copies' dates move from the reference date to the start, counted in "
                      "working days. Hand the result to AKT_Update to save it; what hangs on "
                      "the copies is written already.",
              .result = "A record set of AKT with the copies, on its first row.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "host's own errors. The copies are lost then; what was already written "
                        "for them stays.",
              .tables = "Reads AKT, Std; writes AKTMKM, AKTDET and the host's Blob object.",
              .example = "app.AKT_Update(app.AKT_Copy(app.AKT_Find(where), \"\", project))"}},
};

// Keys of the originals and of their copies, each list between and with bars. A host's keys have
// one length, so equal places mean one row.
struct KeyLists {
    std::string old_keys = "|";
    std::string new_keys = "|";
};

void move_dates(const RecordSet& copy, const Calendar& calendar, Date start, Date reference,
                bool weekends, bool holidays) {
    for (const std::string_view column : {"Datum_Bis", "Vorlage", "Alarm", "Datum"}) {
        copy.set(column,
                 calendar.MoveDate(copy.value(column), start, reference, weekends, holidays));
    }
}

void point_to_copies(Session& session, const RecordSet& copies, const KeyLists& keys) {
    for (copies.move_first(); !copies.at_end(); copies.move_next()) {
        const std::string parent = session.text(copies.value("Akt_Dsn"));
        if (parent.empty()) {
            continue;
        }
        const std::size_t place = keys.old_keys.find("|" + parent + "|");
        if (place < keys.new_keys.size()) {
            copies.set("Akt_Dsn", keys.new_keys.substr(place + 1, parent.size()));
        }
    }
}

}  // namespace

std::span<const Operation> ActivityCopy::operations() noexcept {
    return rows;
}

RecordSet ActivityCopy::AKT_Copy(const RecordSet& rsAkt, std::string_view strUserDsn,
                                 std::string_view strProjekteDsn, Date datStartDate,
                                 Date datRefDate, bool blnWochenende, bool blnFeiertag) const {
    return in_unit(session(), [&] {
        const TableOperations tables(session());
        const bool moves = datStartDate.days != 0 && datRefDate.days != 0;
        RecordSet copies = Gateway(session()).CV_GetRecordset("SELECT * FROM Akt WHERE 1=2");
        KeyLists keys;
        bool any = false;
        for (; !rsAkt.at_end(); rsAkt.move_next()) {
            any = true;
            copies.add_new();
            copies.set("DSN", session().util().NewGUID());
            copies.set("Kennung", MasterData(session()).STD_GetField("Kennung_AKT"));
            const std::string old_key = to_text(rsAkt.value("Dsn"));
            const std::string new_key = to_text(copies.value("Dsn"));
            keys.old_keys.append(old_key).append("|");
            keys.new_keys.append(new_key).append("|");
            tables.Sql_CopyFields(rsAkt, copies, "|DSN|KENNUNG|STAMP|");
            if (!strProjekteDsn.empty()) {
                copies.set("Projekte_Dsn", strProjekteDsn);
            }
            if (moves) {
                move_dates(copies, Calendar(session()), datStartDate, datRefDate, blnWochenende,
                           blnFeiertag);
            }
            if (!strUserDsn.empty()) {
                copies.set("NEU_BEN_DSN", strUserDsn);
                copies.set("ANGELEGT", now());
                copies.set("ÄN_BEN_DSN", strUserDsn);
                copies.set("TOUCH", now());
            }
            Features(session()).Mkm_Copy("AKT", old_key, new_key);
            Attachments(session()).BLOB_Copy(old_key, new_key);
            DetailValues(session()).Det_Copy("AKT", old_key, new_key);
        }
        if (any) {
            point_to_copies(session(), copies, keys);
            copies.move_first();
        }
        return copies;
    });
}

}  // namespace cvdeveloper
