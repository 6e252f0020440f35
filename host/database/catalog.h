#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/sql/names.h"

namespace cvdeveloper::standalone {

enum class ColumnType : std::uint8_t {
    Text,      // CHAR(n), VARCHAR(n)
    LongText,  // LONGTEXT
    Bytes,     // LONGBLOB
    Int16,     // SMALLINT, and every flag
    Int32,     // INTEGER
    Double,    // DOUBLE
    Date,      // DATETIME: kept as text, "2026-03-01 14:30:00"
    Any,       // an expression: whatever its values are
};

struct DeclaredType {
    ColumnType type = ColumnType::Any;
    std::int32_t length = 0;  // UTF-16 units of a Text
};
DeclaredType read_declared_type(std::string_view declaration) noexcept;

struct TableColumn {
    std::string name;
    DeclaredType type;
    bool required = false;
    std::string default_value;  // as the schema writes it: 1, 'text'; "" for none
};

class Table {
  public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    Table(std::string name, std::vector<TableColumn> columns);

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] const std::vector<TableColumn>& columns() const noexcept { return columns_; }
    [[nodiscard]] std::size_t position_of(std::string_view column) const noexcept;
    [[nodiscard]] std::size_t key() const noexcept { return key_; }          // DSN, or npos
    [[nodiscard]] std::size_t version() const noexcept { return version_; }  // STAMP, or npos

  private:
    std::string name_;
    std::vector<TableColumn> columns_;
    std::size_t key_;
    std::size_t version_;
};

// The tables of a database, read once when it is opened.
class Catalog {
  public:
    void add(Table table);
    [[nodiscard]] const Table* find(std::string_view name) const;
    [[nodiscard]] const std::vector<std::unique_ptr<const Table>>& tables() const noexcept {
        return tables_;
    }

  private:
    std::vector<std::unique_ptr<const Table>> tables_;
    sql::NameMap<const Table*> by_name_;
};

}  // namespace cvdeveloper::standalone
