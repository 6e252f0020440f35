#include "data/new_row.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"

namespace cvdeveloper {

RecordSet new_row(Session& session, std::string_view table) {
    RecordSet rs = TableOperations(session).Sql_Find(table, "1=2", "");
    rs.add_new();
    rs.set("DSN", session.util().NewGUID());
    return rs;
}

std::string saved_key(Session& session, RecordSet& rs) {
    // Read before saving: the host may leave another record set behind.
    std::string key = to_text(rs.value("DSN"));
    Gateway(session).CV_UpdateRecordset(rs);
    return key;
}

}  // namespace cvdeveloper
