#include "details/catalogue.h"

#include "platform/text.h"

namespace cvdeveloper {

RecordSet new_active_entry(Session& session, std::string_view table) {
    RecordSet rs = new_row(session, table);
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

}  // namespace cvdeveloper
