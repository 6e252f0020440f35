#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/guard.h"
#include "host/database/catalog.h"
#include "host/database/database.h"
#include "host/sql/names.h"

namespace cvdeveloper::standalone {

// The session that record sets come from and go back to: its guard, and the memory that they share.
struct RecordSetOwner {
    Guard guard;
    std::shared_ptr<BlockPool> blocks = std::make_shared<BlockPool>();
};

struct Column {
    std::string name;
    DeclaredType type;
    bool required = false;
    bool writable = false;         // belongs to the table that the record set is written to
    const Table* table = nullptr;  // nullptr: an expression
    std::size_t table_column = 0;

    // Differs from the name where the statement gives an alias.
    [[nodiscard]] const std::string& name_in_table() const noexcept {
        return table->columns()[table_column].name;
    }
};

// What all record sets of one statement have in common: their columns, how a name finds them, and
// the table that changes go to.
class Shape {
  public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    // dates: positions of expressions that give dates.
    Shape(const std::vector<ResultColumn>& columns, std::span<const std::size_t> dates,
          std::shared_ptr<const Catalog> catalog, std::shared_ptr<RecordSetOwner> owner);

    [[nodiscard]] const std::vector<Column>& columns() const noexcept { return columns_; }
    // The position of a column by name, or npos.
    [[nodiscard]] std::size_t find(std::string_view name) const noexcept;
    // The table that changes are written to; nullptr if there is none.
    [[nodiscard]] const Table* base() const noexcept { return base_; }
    // Positions of the base table's DSN and STAMP, or npos.
    [[nodiscard]] std::size_t key() const noexcept { return key_; }
    [[nodiscard]] std::size_t version() const noexcept { return version_; }
    // No expression among the columns, so no row comes from no row.
    [[nodiscard]] bool all_from_tables() const noexcept { return all_from_tables_; }
    // A new row with the database's defaults.
    [[nodiscard]] std::span<const Cell> new_row() const noexcept { return new_row_; }
    [[nodiscard]] const std::shared_ptr<RecordSetOwner>& owner() const noexcept { return owner_; }

    // "AKT", for messages.
    [[nodiscard]] std::string_view table_name() const noexcept;
    [[noreturn]] void raise_unknown(std::string_view name) const;

  private:
    void choose_base();
    void fill_index();
    void fill_new_row();
    [[nodiscard]] std::size_t find_exactly(std::string_view name) const noexcept;

    std::vector<Column> columns_;
    std::vector<sql::NameKey> keys_;  // of the columns' names
    std::shared_ptr<const Catalog> catalog_;
    std::shared_ptr<RecordSetOwner> owner_;
    const Table* base_ = nullptr;
    std::size_t key_ = npos;
    std::size_t version_ = npos;
    bool all_from_tables_ = true;
    std::vector<std::uint16_t> index_;  // hash table of positions + 1
    std::vector<Cell> new_row_;
    std::vector<std::unique_ptr<const std::string>> default_texts_;
};

}  // namespace cvdeveloper::standalone
