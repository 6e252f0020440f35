#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "host/recordset/client_record_set.h"

namespace cvdeveloper::standalone {

// One changed row of a record set on its way into its table. Columns are the table's.
class RowChange {
  public:
    RowChange(const ClientRecordSet& record_set, const ClientRecordSet::Change& change) noexcept
        : record_set_(record_set), change_(change) {}

    [[nodiscard]] std::size_t row() const noexcept { return change_.row; }
    [[nodiscard]] RowState state() const noexcept { return record_set_.state(change_.row); }
    // Null where the column is null or the record set does not have it.
    [[nodiscard]] Cell cell(std::size_t column) const noexcept;
    // The column gets other content than was read; in a new row, any at all.
    [[nodiscard]] bool changes(std::size_t column) const noexcept;
    // The keys that the row has from now on, and under which it was read.
    [[nodiscard]] std::string_view key() const noexcept;
    [[nodiscard]] std::string_view former_key() const noexcept;

  private:
    const ClientRecordSet& record_set_;
    const ClientRecordSet::Change& change_;
};

// What the host keeps by itself when rows of one table are saved. All of it happens in the
// transaction of the row.
class TableRule {
  public:
    TableRule() = default;
    TableRule(const TableRule&) = delete;
    TableRule& operator=(const TableRule&) = delete;
    virtual ~TableRule() = default;

    [[nodiscard]] virtual const Table& table() const noexcept = 0;
    // Appends what is written for an added or changed row instead of the record set's own values,
    // or besides them.
    virtual void add_values(const RowChange& row, std::vector<HostValue>& values) const = 0;
    // The row has been added, changed or deleted: other tables follow it.
    virtual void follow(const RowChange& row) = 0;
};
using TableRules = std::vector<std::unique_ptr<TableRule>>;

}  // namespace cvdeveloper::standalone
