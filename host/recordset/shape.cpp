#include "host/recordset/shape.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "automation/nearest_names.h"
#include "host/errors.h"
#include "host/sql/names.h"

namespace cvdeveloper::standalone {

Shape::Shape(const std::vector<ResultColumn>& columns, std::span<const std::size_t> dates,
             std::shared_ptr<const Catalog> catalog, std::shared_ptr<RecordSetOwner> owner)
    : catalog_(std::move(catalog)), owner_(std::move(owner)) {
    columns_.reserve(columns.size());
    for (const ResultColumn& from : columns) {
        Column column;
        column.name = from.name;
        if (const Table* table = catalog_->find(from.table)) {
            const std::size_t position = table->position_of(from.column);
            if (position != Table::npos) {
                const TableColumn& declared = table->columns()[position];
                column.type = declared.type;
                column.required = declared.required;
                column.table = table;
                column.table_column = position;
                // A column goes by the schema's spelling, whatever the statement's; an alias by
                // its own.
                if (sql::equal_names(column.name, declared.name)) {
                    column.name = declared.name;
                }
            }
        }
        all_from_tables_ = all_from_tables_ && column.table != nullptr;
        columns_.push_back(std::move(column));
    }
    for (const std::size_t position : dates) {
        columns_[position].type.type = ColumnType::Date;
    }
    choose_base();
    fill_index();
    fill_new_row();
}

// The table whose key was selected, else the first that lent a column.
void Shape::choose_base() {
    for (const Column& column : columns_) {
        if (column.table != nullptr) {
            base_ = base_ == nullptr ? column.table : base_;
            if (column.table_column == column.table->key()) {
                base_ = column.table;
                break;
            }
        }
    }
    if (base_ == nullptr) {
        return;
    }
    std::vector<bool> seen(base_->columns().size());
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        Column& column = columns_[i];
        // A second column of the same name is that of a table joined with itself.
        if (column.table != base_ || seen[column.table_column]) {
            continue;
        }
        seen[column.table_column] = true;
        column.writable = true;
        if (column.table_column == base_->key()) {
            key_ = i;
        } else if (column.table_column == base_->version()) {
            version_ = i;
        }
    }
}

void Shape::fill_index() {
    index_.assign(std::bit_ceil(columns_.size() * 2 + 1), 0);
    keys_.reserve(columns_.size());
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        std::size_t slot = keys_.emplace_back(columns_[i].name).hash();
        while (index_[slot & (index_.size() - 1)] != 0) {
            ++slot;
        }
        index_[slot & (index_.size() - 1)] = static_cast<std::uint16_t>(i + 1);
    }
}

std::size_t Shape::find_exactly(std::string_view name) const noexcept {
    const sql::NameKey key(name);
    std::size_t slot = key.hash();
    while (const std::uint16_t entry = index_[slot & (index_.size() - 1)]) {
        const std::size_t position = entry - 1U;
        if (keys_[position] == key &&
            (key.says_all() || sql::equal_names(columns_[position].name, name))) {
            return position;
        }
        ++slot;
    }
    return npos;
}

std::size_t Shape::find(std::string_view name) const noexcept {
    const std::size_t found = find_exactly(name);
    return found != npos ? found : find_exactly(sql::with_umlauts(name));
}

void Shape::fill_new_row() {
    new_row_.resize(columns_.size());
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (!columns_[i].writable) {
            continue;
        }
        const std::string& text = base_->columns()[columns_[i].table_column].default_value;
        const char* const end = text.data() + text.size();
        std::int64_t whole = 0;
        double number = 0;
        if (text.size() >= 2 && text.front() == '\'') {
            default_texts_.push_back(
                std::make_unique<const std::string>(text.substr(1, text.size() - 2)));
            new_row_[i].data = default_texts_.back()->data();
            new_row_[i].size = static_cast<std::uint32_t>(default_texts_.back()->size());
            new_row_[i].kind = CellKind::Text;
        } else if (const auto [stop, error] = std::from_chars(text.data(), end, whole);
                   error == std::errc() && stop == end) {
            set_integer(new_row_[i], whole);
        } else if (const auto [rest, failure] = std::from_chars(text.data(), end, number);
                   failure == std::errc() && rest == end) {
            set_double(new_row_[i], number);
        }
    }
}

std::string_view Shape::table_name() const noexcept {
    return base_ == nullptr ? std::string_view("der Abfrage") : std::string_view(base_->name());
}

void Shape::raise_unknown(std::string_view name) const {
    std::vector<std::string_view> names;
    for (const Column& column : columns_) {
        names.emplace_back(column.name);
    }
    raise(HostError::UnknownField, "Feld '" + std::string(name) + "' gibt es in " +
                                       std::string(table_name()) + " nicht" +
                                       did_you_mean(name, names));
}

}  // namespace cvdeveloper::standalone
