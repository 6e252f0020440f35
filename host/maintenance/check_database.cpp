#include "host/maintenance/check_database.h"

#include <map>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/folder/schema_folder.h"
#include "host/folder/upgrade.h"

namespace cvdeveloper::standalone {

namespace {

// A damaged file has a thousand faults of one cause.
constexpr std::string_view structure_check = "PRAGMA integrity_check(20)";

Rows query(Database& database, std::string_view statement, std::span<const Value> values = {}) {
    const auto prepared = database.prepare(statement, Author::Host);
    Rows rows(prepared->columns().size());
    prepared->query(values, rows);
    return rows;
}

std::string quoted_name(std::string_view name) {
    return std::string("\"").append(name).append("\"");
}

bool same_type(const TableColumn& left, const TableColumn& right) {
    return left.type.type == right.type.type && left.type.length == right.type.length &&
           left.required == right.required;
}

void check_columns(const Table& wanted, const Table& table, Problems& problems) {
    for (const TableColumn& column : wanted.columns()) {
        const std::size_t position = table.position_of(column.name);
        const std::string name = wanted.name() + "." + column.name;
        if (position == Table::npos) {
            problems.push_back("Es fehlt die Spalte " + name + ".");
        } else if (!same_type(column, table.columns()[position])) {
            problems.push_back("Die Spalte " + name + " ist anders angelegt als vorgesehen.");
        }
    }
}

// The tables of all indexes.
std::map<std::string, std::string> indexes(Database& database) {
    const Rows rows =
        query(database,
              "SELECT name, tbl_name FROM sqlite_schema WHERE type='index' AND sql IS NOT NULL");
    std::map<std::string, std::string> all;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        all.emplace(rows[i][0].text(), rows[i][1].text());
    }
    return all;
}

// The largest number that a record of the table has got from the counter.
std::int64_t largest_number(Database& database, const Table& table, std::string_view prefix) {
    const std::string digits = "trim(substr(Kennung, length(?1) + 1))";
    const std::string statement = "SELECT max(CAST(" + digits + " AS INTEGER)) FROM " +
                                  quoted_name(table.name()) +
                                  " WHERE substr(Kennung, 1, length(?1)) = ?1 AND " + digits +
                                  " NOT GLOB '*[^0-9]*' AND length(" + digits + ") < 18";
    const Value value = prefix;
    const Rows rows = query(database, statement, {&value, 1});
    return rows[0][0].is_null() ? 0 : rows[0][0].integer;
}

}  // namespace

void check_structure(Database& database, Problems& problems) {
    const Rows rows = query(database, structure_check);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i][0].text() != "ok") {
            problems.push_back("Die Datenbank ist beschädigt: " + std::string(rows[i][0].text()) +
                               ".");
        }
    }
}

void check_schema(Database& database, Problems& problems) {
    if (const int version = version_of(database); version != schema_version) {
        problems.push_back("Die Datenbank hat die Version " + std::to_string(version) +
                           "; die nächste Anmeldung bringt sie auf Version " +
                           std::to_string(schema_version) + ".");
        return;
    }
    sqlite::Connection wanted(":memory:", {.create = true, .sync = Sync::Never});
    wanted.run_script(read_schema_file(schema_folder() / "schema.sql"));
    wanted.read_catalog();
    for (const auto& table : wanted.catalog()->tables()) {
        const Table* const present = database.catalog()->find(table->name());
        if (present == nullptr) {
            problems.push_back("Es fehlt die Tabelle " + table->name() + ".");
        } else {
            check_columns(*table, *present, problems);
        }
    }
    const std::map<std::string, std::string> present = indexes(database);
    for (const auto& [index, table] : indexes(wanted)) {
        if (!present.contains(index) && database.catalog()->find(table) != nullptr) {
            problems.push_back("Es fehlt der Index " + index + ".");
        }
    }
}

std::int64_t check_rows(Database& database, Problems& problems) {
    std::int64_t rows = 0;
    for (const auto& table : database.catalog()->tables()) {
        std::string statement = "SELECT count(*)";
        statement += table->version() == Table::npos
                         ? ", 0"
                         : ", count(*) FILTER (WHERE typeof(STAMP) <> 'integer' OR STAMP < 0)";
        statement +=
            table->key() == Table::npos ? ", 0" : ", count(*) FILTER (WHERE trim(DSN) = '')";
        const Rows found = query(database, statement + " FROM " + quoted_name(table->name()));
        rows += found[0][0].integer;
        if (const std::int64_t count = found[0][1].integer; count > 0) {
            problems.push_back("In " + table->name() + " ist STAMP keine Versionsnummer, in " +
                               std::to_string(count) + " Datensätzen.");
        }
        if (const std::int64_t count = found[0][2].integer; count > 0) {
            problems.push_back("In " + table->name() + " ist DSN leer, in " +
                               std::to_string(count) + " Datensätzen.");
        }
    }
    return rows;
}

void check_counters(Database& database, Problems& problems) {
    constexpr std::string_view front = "Kennung_";
    if (database.catalog()->find("cv_counter") == nullptr) {
        return;  // the schema's check has said so
    }
    const Rows counters =
        query(database, "SELECT name, ifnull(prefix, ''), last_number FROM cv_counter");
    for (std::size_t i = 0; i < counters.size(); ++i) {
        const std::string_view name = counters[i][0].text();
        const Table* const table =
            name.size() > front.size() && sql::equal_names(name.substr(0, front.size()), front)
                ? database.catalog()->find(name.substr(front.size()))
                : nullptr;
        if (table == nullptr || table->position_of("Kennung") == Table::npos) {
            continue;
        }
        const std::string_view prefix = counters[i][1].text();
        const std::int64_t largest = largest_number(database, *table, prefix);
        if (largest > counters[i][2].integer) {
            problems.push_back("Der Zähler " + std::string(name) + " steht auf " +
                               std::to_string(counters[i][2].integer) + ", in " + table->name() +
                               " gibt es schon die Nummer " + std::string(prefix) +
                               std::to_string(largest) + ".");
        }
    }
}

}  // namespace cvdeveloper::standalone
