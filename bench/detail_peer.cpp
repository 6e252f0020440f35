#include "detail_peer.h"

#include "host/database/sqlite/functions.h"
#include "peer_statements.h"

namespace cvdeveloper::bench {

namespace {

constexpr char read_value[] =
    "SELECT AKTDET.Eingabe FROM AKT INNER JOIN AKTDET ON AKT.dsn = AKTDET.AKT_dsn "
    "WHERE (AKT.DSN=?) AND (AKTDET.FLDART_DSN=?) ORDER BY AKTDET.DSN";
constexpr char read_row[] =
    "SELECT AKTDET.* FROM AKT INNER JOIN AKTDET ON AKT.dsn = AKTDET.AKT_dsn "
    "WHERE (AKT.DSN=?) AND (AKTDET.FLDART_DSN=?) ORDER BY AKTDET.DSN";

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

Database open_database(const std::string& file) {
    sqlite3* database = nullptr;
    check(sqlite3_open(file.c_str(), &database), database);
    standalone::sqlite::install_functions(database);
    check(sqlite3_exec(database, "PRAGMA synchronous=FULL; PRAGMA cache_size=-16000;", nullptr,
                       nullptr, nullptr),
          database);
    return {database, &sqlite3_close};
}

}  // namespace

struct DetailPeer::Statements {
    explicit Statements(const std::string& file) : owner(open_database(file)) {}

    Database owner;
    sqlite3* database = owner.get();
    Statement value = prepare(database, read_value);
    Statement row = prepare(database, read_row);
    Statement update =
        prepare(database, "UPDATE AKTDET SET Eingabe=?, STAMP=STAMP+1 WHERE DSN=? AND STAMP=?");
    Statement find_link =
        prepare(database, "SELECT * FROM AKTMKM WHERE (link_dsn=?) AND (mkm_dsn=?)");
    Statement insert_link =
        prepare(database, "INSERT INTO AKTMKM (DSN, Link_DSN, MKM_DSN, STAMP) VALUES (?, ?, ?, 1)");
};

DetailPeer::DetailPeer(const std::string& database, const std::string& log_folder)
    : statements_(std::make_unique<Statements>(database)), log_file_(log_folder + "/peer.log") {}

DetailPeer::~DetailPeer() = default;

std::string DetailPeer::value(std::string_view record, std::string_view field_kind) {
    Statements& s = *statements_;
    bind(s.value.get(), 1, record);
    bind(s.value.get(), 2, field_kind);
    return run(s.database, s.value).at(0);
}

void DetailPeer::set_value(std::string_view record, std::string_view field_kind,
                           std::string_view value) {
    Statements& s = *statements_;
    bind(s.row.get(), 1, record);
    bind(s.row.get(), 2, field_kind);
    const std::vector<std::string> row = run(s.database, s.row);
    bind(s.update.get(), 1, value);
    bind(s.update.get(), 2, row.at(0));
    sqlite3_bind_int64(s.update.get(), 3, std::stoll(row.at(1)));
    run(s.database, s.update);
}

void DetailPeer::add_feature(std::string_view record, std::string_view feature) {
    Statements& s = *statements_;
    bind(s.find_link.get(), 1, record);
    bind(s.find_link.get(), 2, feature);
    if (!run(s.database, s.find_link).empty()) {
        return;
    }
    append_line(log_file_, "SELECT * FROM AKTMKM WHERE (link_dsn='" + std::string(record) +
                               "') AND (mkm_dsn='" + std::string(feature) + "')");
    bind(s.insert_link.get(), 1, new_key());
    bind(s.insert_link.get(), 2, record);
    bind(s.insert_link.get(), 3, feature);
    run(s.database, s.insert_link);
}

}  // namespace cvdeveloper::bench
