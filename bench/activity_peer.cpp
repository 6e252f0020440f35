#include "activity_peer.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "host/database/sqlite/functions.h"

namespace cvdeveloper::bench {

namespace {

constexpr char key_columns[] =
    "INSERT INTO AKT (DSN, Kennung, Priorität, FArchiv, Art_Dsn, Subject, Notiz, Erledigt, Datum, "
    "Datum_Bis, Vorlage, Alarm, Loeschdatum, Stichwort1, Stichwort2, Emsk_Dsn, AD_Dsn, AD_B_Dsn, "
    "OBJ_Dsn, ANF_Dsn, Projekte_Dsn, Akten_Dsn, Verträge_Dsn, Details_Dsn, Akt_Dsn, ACL, STAMP) "
    "VALUES (?, ?, 1, 0, NULL, ?, '', 0, NULL, NULL, NULL, NULL, NULL, '', '', NULL, NULL, NULL, "
    "NULL, NULL, NULL, NULL, NULL, NULL, NULL, ?, 1)";

void check(int result, sqlite3* database) {
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Statement prepare(sqlite3* database, const char* text) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(database, text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr),
          database);
    return {statement, &sqlite3_finalize};
}

void bind(sqlite3_stmt* statement, int place, std::string_view text) {
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

// Runs to the end and copies every value of the rows, as a client-side record set would.
std::vector<std::string> run(sqlite3* database, const Statement& statement) {
    std::vector<std::string> values;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
        for (int i = 0; i < sqlite3_column_count(statement.get()); ++i) {
            const auto* text = sqlite3_column_text(statement.get(), i);
            values.emplace_back(text == nullptr ? "" : reinterpret_cast<const char*>(text));
        }
    }
    check(result, database);
    sqlite3_reset(statement.get());
    return values;
}

std::string new_key() {
    static int number = 0;
    std::array<char, 37> text{};
    std::snprintf(text.data(), text.size(), "BE4C0000-0000-4000-8000-%06X%06X",
                  static_cast<unsigned>(getpid()) & 0xFFFFFFU, static_cast<unsigned>(++number));
    return text.data();
}

void append_line(const std::string& file, const std::string& message) {
    std::array<char, 32> stamp{};
    const std::time_t time = std::time(nullptr);
    std::tm local{};
    localtime_r(&time, &local);
    std::strftime(stamp.data(), stamp.size(), "%d.%m.%Y %H:%M:%S", &local);
    const std::string line =
        std::string(stamp.data()) + " - EOF=true in  : SQL: " + message + "\r\n";
    const int descriptor = open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    const auto written = write(descriptor, line.data(), line.size());
    static_cast<void>(written);
    close(descriptor);
}

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
