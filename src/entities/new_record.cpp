#include "entities/new_record.h"

#include "cvdeveloper/data/user_profile.h"
#include "cvdeveloper/details/features.h"
#include "cvdeveloper/entities/master_data.h"

namespace cvdeveloper {

RecordSet new_coded_record(Session& session, std::string_view table) {
    RecordSet rs = new_row(session, table);
    rs.set("Kennung", MasterData(session).STD_GetField("Kennung_" + std::string(table)));
    return rs;
}

std::string save_new_record(Session& session, RecordSet& rs) {
    rs.set("ACL", UserProfile(session).BEN_StdACL());
    return saved_key(session, rs);
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
