#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace cvdeveloper::bench {

// A value that outlives its row.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

// A prepared statement that is run again and again.
class Query {
  public:
    Query(sqlite3* database, std::string_view text);

    // Starts anew with these parameters; texts are borrowed until the next call of bind or run.
    template <class... Values>
    Query& bind(const Values&... values) {
        sqlite3_reset(statement_.get());
        int place = 0;
        (bind_at(++place, values), ...);
        return *this;
    }
    void bind_at(int place, std::string_view text);
    void bind_at(int place, std::int64_t number);
    void bind_at(int place, const Value& value);

    bool step();
    void run();  // to the end
    void finish() { sqlite3_reset(statement_.get()); }

    [[nodiscard]] std::string text(int column) const;
    [[nodiscard]] std::int64_t number(int column) const;
    [[nodiscard]] Value value(int column) const;
    [[nodiscard]] int columns() const;
    [[nodiscard]] int find(std::string_view name) const;
    [[nodiscard]] std::vector<std::string> names() const;

  private:
    std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement_;
};

// A connection set up as the library's host does it.
class Database {
  public:
    Database(const std::string& folder, bool full_sync);

    [[nodiscard]] sqlite3* handle() const noexcept { return handle_.get(); }
    // By its name in statements.sql.
    [[nodiscard]] Query query(std::string_view name) const;

  private:
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> handle_;
};

void check(int result, sqlite3* database);

}  // namespace cvdeveloper::bench
