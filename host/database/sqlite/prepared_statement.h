#pragma once

#include <sqlite3.h>

#include <memory>
#include <vector>

#include "host/database/sqlite/connection.h"

namespace cvdeveloper::standalone::sqlite {

class PreparedStatement final : public Statement {
  public:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
    };
    using Handle = std::unique_ptr<sqlite3_stmt, Finalize>;

    PreparedStatement(Connection& connection, Handle handle, Author author);

    [[nodiscard]] const std::vector<ResultColumn>& columns() const noexcept override {
        return columns_;
    }
    [[nodiscard]] std::size_t parameter_count() const noexcept override;
    void query(std::span<const Value> values, Rows& rows) override;
    std::int64_t execute(std::span<const Value> values) override;

  private:
    void bind(std::span<const Value> values);
    void read_row(Rows& rows);
    [[nodiscard]] std::span<sqlite3_value* const> values_of_row();
    // Steps once; true while there is a row. Failures are raised after the reset.
    bool step();

    Connection& connection_;
    Handle handle_;
    Author author_;
    bool writes_;
    std::vector<ResultColumn> columns_;
    bool places_stay_;  // this is the version of SQLite that this was built and tested with
    std::vector<sqlite3_value*> values_;  // where the row before was
    RowRoom room_;
};

}  // namespace cvdeveloper::standalone::sqlite
