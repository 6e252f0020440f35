#include "entities/new_record.h"

#include "cvdeveloper/data/table_operations.h"

namespace cvdeveloper {

RecordSet new_record(Session& session, std::string_view table) {
    RecordSet rs = TableOperations(session).Sql_Find(table, "1=2", "");
    rs.add_new();
    rs.set("DSN", session.util().NewGUID());
    return rs;
}

}  // namespace cvdeveloper
