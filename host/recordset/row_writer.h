#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "host/database/database.h"
#include "host/database/statement_cache.h"
#include "host/recordset/client_record_set.h"
#include "host/recordset/table_rule.h"
#include "host/recordset/write_statement.h"

namespace cvdeveloper::standalone {

// Writes a record set's changes into its table, row by row in the order in which they were made.
// A row is known by its DSN; where its STAMP was read too, a row that somebody else has changed in
// between is an error. A record set without STAMP writes without that check.
class RowWriter {
  public:
    explicit RowWriter(Database& database, TableRules rules = {})
        : database_(database), rules_(std::move(rules)), statements_(200) {}

    // Errors: NotUpdatable, RowChanged, ValueRefused, and the database's own. The caller brackets
    // it and tells the record set when everything is in the database.
    SavedChanges write(const ClientRecordSet& record_set);
    // Whether writing the changes takes no more than one statement.
    [[nodiscard]] bool is_single_statement(const ClientRecordSet& record_set) const noexcept;
    // Whether the changes are new rows and nothing else, so that take_back() can undo them.
    [[nodiscard]] bool only_adds(const ClientRecordSet& record_set) const noexcept;
    // Deletes the new rows that the last write() has inserted.
    void take_back(const ClientRecordSet& record_set);

  private:
    struct Nothing {};

    // Nothing for the tables that have no rule: nearly all.
    [[nodiscard]] TableRule* rule_of(const Shape& shape) const noexcept;
    std::int64_t write_row(const ClientRecordSet& record_set, const ClientRecordSet::Change& change,
                           std::span<const HostValue> host_values);
    std::int64_t insert(const ClientRecordSet& record_set, std::size_t row,
                        std::span<const HostValue> host_values);
    std::int64_t update(const ClientRecordSet& record_set, const ClientRecordSet::Change& change,
                        std::span<const HostValue> host_values);
    void remove(const ClientRecordSet& record_set, const ClientRecordSet::Change& change);
    [[noreturn]] void raise_conflict(const ClientRecordSet& record_set,
                                     const ClientRecordSet::Change& change);
    // Appends what is written of a row to the statement and its values.
    void add_values(const Shape& shape, const Row& cells, std::span<const HostValue> host_values);
    std::int64_t execute();

    Database& database_;
    TableRules rules_;
    StatementCache<Nothing> statements_;
    // Used again for each row.
    WriteStatement statement_;
    std::vector<Value> values_;
    std::size_t written_ = 0;  // changes, by the last write()
};

}  // namespace cvdeveloper::standalone
