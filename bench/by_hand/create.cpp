#include "by_hand/create.h"

#include <vector>

namespace cvdeveloper::bench {

namespace {

constexpr std::string_view user_key = "BE000000-0000-4000-8000-000000000001";

}  // namespace

NumberByHand::NumberByHand(const Database& database)
    : ask_(database.query("number")), take_(database.query("take_number")) {}

std::string NumberByHand::take() {
    ask_.run();
    take_.step();
    std::string key = human_key(take_.text(0), take_.number(1));
    take_.run();
    return key;
}

LinksByHand::LinksByHand(const Database& database, const std::string& folder)
    : find_(database.query("link")), insert_(database.query("insert_link")), log_(folder) {}

void LinksByHand::add(std::string_view record, std::string_view feature) {
    const bool found = find_.bind(record, feature).step();
    find_.finish();
    if (found) {
        return;
    }
    std::string logged = "SELECT * FROM AKTMKM WHERE (link_dsn='";
    logged.append(record).append("') AND (mkm_dsn='").append(feature).append("')");
    log_.empty_result(logged);
    const std::string key = new_key();
    insert_.bind(std::string_view(key), record, feature).run();
}

CreateByHand::CreateByHand(const Database& database, const std::string& folder)
    : no_activity_(database.query("no_activity")),
      user_(database.query("user")),
      insert_(database.query("insert_activity")),
      number_(database),
      links_(database, folder),
      log_(folder),
      rights_column_(user_.find("Rechteschablonen")),
      feature_columns_{user_.find("STD_MKM1"), user_.find("STD_MKM2"), user_.find("STD_MKM3"),
                       user_.find("STD_MKM4"), user_.find("STD_MKM5")} {}

std::string CreateByHand::user_field(int column) {
    std::string value;
    if (user_.bind(user_key).step()) {
        value = user_.text(column);
    }
    user_.finish();
    return value;
}

std::string CreateByHand::create(std::string_view subject) {
    no_activity_.run();
    log_.empty_result(statement("no_activity"));
    std::string key = new_key();
    const std::string code = number_.take();
    const std::string rights = standard_rights(user_field(rights_column_));
    insert_.bind(std::string_view(key), std::string_view(code), subject, std::string_view(rights))
        .run();
    std::vector<std::string> wanted;
    for (const int column : feature_columns_) {
        if (std::string feature = user_field(column); !feature.empty()) {
            wanted.push_back(std::move(feature));
        }
    }
    for (const std::string& feature : wanted) {
        links_.add(key, feature);
    }
    return key;
}

}  // namespace cvdeveloper::bench
