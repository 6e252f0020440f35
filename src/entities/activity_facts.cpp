#include "entities/activity_facts.h"

#include "entities/new_record.h"

namespace cvdeveloper {

void write_facts(Session& session, const RecordSet& rs, const ActivityFacts& facts) {
    constexpr std::size_t keyword_units = 50;
    host::Util& util = session.util();
    rs.set("Erledigt", flag_value(facts.done));
    rs.set("Datum", date_or_null(facts.from));
    rs.set("Datum_Bis", date_or_null(facts.until));
    rs.set("Vorlage", date_or_null(facts.follow_up));
    rs.set("Alarm", date_or_null(facts.alarm));
    rs.set("Loeschdatum", date_or_null(facts.deletion));
    rs.set("Stichwort1", cut_text(facts.keyword_1, keyword_units));
    rs.set("Stichwort2", cut_text(facts.keyword_2, keyword_units));
    rs.set("Emsk_Dsn", util.SqlStrNull(facts.mask));
    rs.set("AD_Dsn", util.SqlStrNull(facts.address_1));
    rs.set("AD_B_Dsn", util.SqlStrNull(facts.address_2));
    rs.set("OBJ_Dsn", util.SqlStrNull(facts.object));
    rs.set("ANF_Dsn", util.SqlStrNull(facts.request));
    rs.set("Projekte_Dsn", util.SqlStrNull(facts.project));
    rs.set("Akten_Dsn", util.SqlStrNull(facts.case_file));
    rs.set("Verträge_Dsn", util.SqlStrNull(facts.contract));
}

}  // namespace cvdeveloper
