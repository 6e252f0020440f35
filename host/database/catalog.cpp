#include "host/database/catalog.h"

#include <charconv>

namespace cvdeveloper::standalone {

DeclaredType read_declared_type(std::string_view declaration) noexcept {
    const std::size_t bracket = declaration.find('(');
    const std::string_view word = declaration.substr(0, bracket);
    const auto is = [word](std::string_view type) { return sql::equal_names(word, type); };
    if (is("CHAR") || is("VARCHAR")) {
        DeclaredType text{.type = ColumnType::LongText};
        if (bracket != std::string_view::npos) {
            const char* const end = declaration.data() + declaration.size();
            std::from_chars(declaration.data() + bracket + 1, end, text.length);
            text.type = ColumnType::Text;
        }
        return text;
    }
    if (is("LONGTEXT") || is("TEXT")) {
        return {.type = ColumnType::LongText};
    }
    if (is("LONGBLOB") || is("BLOB")) {
        return {.type = ColumnType::Bytes};
    }
    if (is("SMALLINT")) {
        return {.type = ColumnType::Int16};
    }
    if (is("INTEGER") || is("INT")) {
        return {.type = ColumnType::Int32};
    }
    if (is("DOUBLE") || is("REAL")) {
        return {.type = ColumnType::Double};
    }
    if (is("DATETIME")) {
        return {.type = ColumnType::Date};
    }
    return {};
}

Table::Table(std::string name, std::vector<TableColumn> columns)
    : name_(std::move(name)),
      columns_(std::move(columns)),
      key_(position_of("DSN")),
      version_(position_of("STAMP")) {}

std::size_t Table::position_of(std::string_view column) const noexcept {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (sql::equal_names(columns_[i].name, column)) {
            return i;
        }
    }
    return npos;
}

void Catalog::add(Table table) {
    tables_.push_back(std::make_unique<const Table>(std::move(table)));
    by_name_.emplace(tables_.back()->name(), tables_.back().get());
}

const Table* Catalog::find(std::string_view name) const {
    const auto found = by_name_.find(name);
    return found == by_name_.end() ? nullptr : found->second;
}

}  // namespace cvdeveloper::standalone
