#include "peers/soci_database.h"

#include <soci/sqlite3/soci-sqlite3.h>

#include "host/database/sqlite/functions.h"

namespace cvdeveloper::bench {

std::unique_ptr<soci::session> open_session(const Order& order) {
    auto sql = std::make_unique<soci::session>(
        soci::sqlite3,
        "db=" + order.folder + "/corvanta.db synchronous=" + (order.full_sync ? "full" : "off"));
    auto* const backend = static_cast<soci::sqlite3_session_backend*>(sql->get_backend());
    standalone::sqlite::install_functions(reinterpret_cast<::sqlite3*>(backend->conn_));
    *sql << "PRAGMA cache_size=-16000";
    *sql << "PRAGMA temp_store=MEMORY";
    return sql;
}

}  // namespace cvdeveloper::bench
