#include "details/catalogue.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "platform/text.h"

namespace cvdeveloper {

RecordSet new_entry(Session& session, std::string_view table) {
    RecordSet rs = TableOperations(session).Sql_Find(table, "1=2");
    rs.add_new();
    rs.set("DSN", session.util().NewGUID());
    return rs;
}

RecordSet new_active_entry(Session& session, std::string_view table) {
    RecordSet rs = new_entry(session, table);
    rs.set("Aktiv", std::int16_t{1});
    return rs;
}

void offer_to_tables(const RecordSet& rs, std::string_view tables) {
    std::string list(tables);
    while (!list.empty()) {
        const std::string table = take_first(list, ",");
        rs.set(lower_case(trim_blanks(table)), std::int16_t{1});
    }
}

std::string saved_key(Session& session, RecordSet& rs) {
    // Read before saving: the host may leave another record set behind.
    std::string key = to_text(rs.value("DSN"));
    Gateway(session).CV_UpdateRecordset(rs);
    return key;
}

}  // namespace cvdeveloper
