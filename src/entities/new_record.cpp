#include "entities/new_record.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/user_profile.h"
#include "cvdeveloper/details/features.h"
#include "cvdeveloper/entities/master_data.h"

namespace cvdeveloper {

RecordSet new_record(Session& session, std::string_view table) {
    RecordSet rs = TableOperations(session).Sql_Find(table, "1=2", "");
    rs.add_new();
    rs.set("DSN", session.util().NewGUID());
    return rs;
}

RecordSet new_coded_record(Session& session, std::string_view table) {
    RecordSet rs = new_record(session, table);
    rs.set("Kennung", MasterData(session).STD_GetField("Kennung_" + std::string(table)));
    return rs;
}

std::string save_new_record(Session& session, RecordSet& rs) {
    rs.set("ACL", UserProfile(session).BEN_StdACL());
    std::string key = to_text(rs.value("Dsn"));
    Gateway(session).CV_UpdateRecordset(rs);
    return key;
}

void add_standard_features(Session& session, std::string_view table, std::string_view key) {
    Features(session).Mkm_Add(table, key, UserProfile(session).BEN_MerkmalDsnCommaList());
}

std::string create_record(Session& session, std::string_view table, RecordSet& rs) {
    std::string key = save_new_record(session, rs);
    add_standard_features(session, table, key);
    return key;
}

}  // namespace cvdeveloper
