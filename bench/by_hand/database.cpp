#include "by_hand/database.h"

#include <stdexcept>

#include "common/peer.h"
#include "host/database/sqlite/functions.h"

namespace cvdeveloper::bench {

namespace {

std::string_view text_at(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return {text == nullptr ? "" : text,
            static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

sqlite3_stmt* prepare(sqlite3* database, std::string_view text) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(database, text.data(), static_cast<int>(text.size()),
                             SQLITE_PREPARE_PERSISTENT, &statement, nullptr),
          database);
    return statement;
}

sqlite3* open(const std::string& folder) {
    sqlite3* database = nullptr;
    check(sqlite3_open((folder + "/corvanta.db").c_str(), &database), database);
    return database;
}

}  // namespace

void check(int result, sqlite3* database) {
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

Query::Query(sqlite3* database, std::string_view text)
    : statement_(prepare(database, text), &sqlite3_finalize) {}

void Query::bind_at(int place, std::string_view text) {
    sqlite3_bind_text(statement_.get(), place, text.data(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
}

void Query::bind_at(int place, std::int64_t number) {
    sqlite3_bind_int64(statement_.get(), place, number);
}

void Query::bind_at(int place, const Value& value) {
    switch (value.index()) {
        case 1:
            sqlite3_bind_int64(statement_.get(), place, std::get<std::int64_t>(value));
            break;
        case 2:
            sqlite3_bind_double(statement_.get(), place, std::get<double>(value));
            break;
        case 3:
            bind_at(place, std::string_view(std::get<std::string>(value)));
            break;
        default:
            sqlite3_bind_null(statement_.get(), place);
            break;
    }
}

bool Query::step() {
    const int result = sqlite3_step(statement_.get());
    check(result, sqlite3_db_handle(statement_.get()));
    return result == SQLITE_ROW;
}

void Query::run() {
    while (step()) {
    }
    finish();
}

std::string Query::text(int column) const {
    return std::string(text_at(statement_.get(), column));
}

std::int64_t Query::number(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

Value Query::value(int column) const {
    switch (sqlite3_column_type(statement_.get(), column)) {
        case SQLITE_INTEGER:
            return number(column);
        case SQLITE_FLOAT:
            return sqlite3_column_double(statement_.get(), column);
        case SQLITE_TEXT:
            return text(column);
        default:
            return std::monostate{};
    }
}

int Query::columns() const {
    return sqlite3_column_count(statement_.get());
}

int Query::find(std::string_view name) const {
    for (int i = 0; i < columns(); ++i) {
        if (name == sqlite3_column_name(statement_.get(), i)) {
            return i;
        }
    }
    throw std::runtime_error("no column " + std::string(name));
}

std::vector<std::string> Query::names() const {
    std::vector<std::string> names;
    for (int i = 0; i < columns(); ++i) {
        names.emplace_back(sqlite3_column_name(statement_.get(), i));
    }
    return names;
}

Database::Database(const std::string& folder, bool full_sync)
    : handle_(open(folder), &sqlite3_close) {
    standalone::sqlite::install_functions(handle());
    const std::string settings = std::string(
                                     "PRAGMA cache_size=-16000; PRAGMA temp_store=MEMORY; "
                                     "PRAGMA synchronous=") +
                                 (full_sync ? "FULL" : "OFF");
    check(sqlite3_exec(handle(), settings.c_str(), nullptr, nullptr, nullptr), handle());
}

Query Database::query(std::string_view name) const {
    return {handle(), statement(name)};
}

}  // namespace cvdeveloper::bench
