#pragma once

#include <cstdint>
#include <string_view>

#include "host/sql/names.h"
#include "host/sql/token.h"

namespace cvdeveloper::standalone::sql {

enum class ColumnKind : std::uint8_t { Text, Date, Other };

// What reading a statement needs to know of the schema.
class Dictionary {
  public:
    void add_table(std::string_view name) { spelling_.add(name, NameUse::Table); }
    // A name that columns of different kinds share is of no kind.
    void add_column(std::string_view name, ColumnKind kind) {
        spelling_.add(name, NameUse::Column);
        const auto [known, is_new] = kinds_.emplace(name, kind);
        if (!is_new && known->second != kind) {
            known->second = ColumnKind::Other;
        }
    }
    [[nodiscard]] const Spelling& spelling() const noexcept { return spelling_; }
    // Of the column that a name, quoted or not, stands for.
    [[nodiscard]] ColumnKind kind_of(const Token& name) const {
        if (name.kind != TokenKind::Name && name.kind != TokenKind::QuotedName) {
            return ColumnKind::Other;
        }
        const auto found = kinds_.find(name.unquoted());
        return found == kinds_.end() ? ColumnKind::Other : found->second;
    }

  private:
    Spelling spelling_;
    NameMap<ColumnKind> kinds_;
};

}  // namespace cvdeveloper::standalone::sql
