#include "activity_peer.h"

#include <array>
#include <string_view>
#include <vector>

#include "host/database/sqlite/functions.h"
#include "peer_statements.h"

namespace cvdeveloper::bench {

namespace {

constexpr char key_columns[] =
    "INSERT INTO AKT (DSN, Kennung, Priorität, FArchiv, Art_Dsn, Subject, Notiz, Erledigt, Datum, "
    "Datum_Bis, Vorlage, Alarm, Loeschdatum, Stichwort1, Stichwort2, Emsk_Dsn, AD_Dsn, AD_B_Dsn, "
    "OBJ_Dsn, ANF_Dsn, Projekte_Dsn, Akten_Dsn, Verträge_Dsn, Details_Dsn, Akt_Dsn, ACL, STAMP) "
    "VALUES (?, ?, 1, 0, NULL, ?, '', 0, NULL, NULL, NULL, NULL, NULL, '', '', NULL, NULL, NULL, "
    "NULL, NULL, NULL, NULL, NULL, NULL, NULL, ?, 1)";

}  // namespace

struct ActivityPeer::Statements {
    explicit Statements(const std::string& file) {
        check(sqlite3_open(file.c_str(), &database), database);
        standalone::sqlite::install_functions(database);
        sqlite3_exec(database, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
        empty = prepare(database, "SELECT * FROM AKT WHERE 1=2");
        number = prepare(database,
                         "UPDATE cv_counter SET last_number = last_number + 1 WHERE name = "
                         "'Kennung_AKT' RETURNING prefix || last_number");
        user = prepare(database, "SELECT * FROM Benutzer WHERE Login_Name = 'chef'");
        insert = prepare(database, key_columns);
        find_link = prepare(database, "SELECT * FROM AKTMKM WHERE (link_dsn=?) AND (mkm_dsn=?)");
        insert_link = prepare(
            database, "INSERT INTO AKTMKM (DSN, Link_DSN, MKM_DSN, STAMP) VALUES (?, ?, ?, 1)");
        for (int i = 0; i < sqlite3_column_count(user.get()); ++i) {
            const std::string name = sqlite3_column_name(user.get(), i);
            if (name.starts_with("STD_MKM")) {
                feature_columns.push_back(static_cast<std::size_t>(i));
            } else if (name == "Rechteschablonen") {
                rights_column = static_cast<std::size_t>(i);
            }
        }
    }
    Statements(const Statements&) = delete;
    Statements& operator=(const Statements&) = delete;
    ~Statements() {
        for (Statement* statement : {&empty, &number, &user, &insert, &find_link, &insert_link}) {
            statement->reset();
        }
        sqlite3_close(database);
    }

    sqlite3* database = nullptr;
    Statement empty{nullptr, &sqlite3_finalize};
    Statement number{nullptr, &sqlite3_finalize};
    Statement user{nullptr, &sqlite3_finalize};
    Statement insert{nullptr, &sqlite3_finalize};
    Statement find_link{nullptr, &sqlite3_finalize};
    Statement insert_link{nullptr, &sqlite3_finalize};
    std::vector<std::size_t> feature_columns;
    std::size_t rights_column = 0;
};

ActivityPeer::ActivityPeer(const std::string& database, const std::string& log_folder)
    : statements_(std::make_unique<Statements>(database)), log_file_(log_folder + "/peer.log") {}

ActivityPeer::~ActivityPeer() = default;

std::string ActivityPeer::create(const std::string& subject) {
    Statements& s = *statements_;
    run(s.database, s.empty);
    append_line(log_file_, "SELECT * FROM AKT  WHERE 1=2");
    const std::string number = run(s.database, s.number).at(0);

    const std::string rights = run(s.database, s.user).at(s.rights_column);
    const std::string key = new_key();
    bind(s.insert.get(), 1, key);
    bind(s.insert.get(), 2, number);
    bind(s.insert.get(), 3, subject);
    bind(s.insert.get(), 4, std::string_view(rights).substr(rights.rfind('|') + 1));
    run(s.database, s.insert);

    std::vector<std::string> features;
    for (const std::size_t column : s.feature_columns) {
        features.push_back(run(s.database, s.user).at(column));
    }
    for (const std::string& feature : features) {
        if (feature.empty()) {
            continue;
        }
        bind(s.find_link.get(), 1, key);
        bind(s.find_link.get(), 2, feature);
        run(s.database, s.find_link);
        append_line(log_file_, "SELECT * FROM AKTMKM WHERE (link_dsn='" + key +
                                   "') AND (mkm_dsn='" + feature + "')");
        bind(s.insert_link.get(), 1, new_key());
        bind(s.insert_link.get(), 2, key);
        bind(s.insert_link.get(), 3, feature);
        run(s.database, s.insert_link);
    }
    return key;
}

}  // namespace cvdeveloper::bench
