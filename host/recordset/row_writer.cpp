#include "host/recordset/row_writer.h"

#include <algorithm>

#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/recordset/column_values.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

void require_key(const Shape& shape) {
    if (shape.base() == nullptr) {
        raise(
            HostError::NotUpdatable,
            "Das Recordset enthält keine Spalte einer Tabelle und kann nicht geschrieben werden.");
    }
    if (shape.base()->key() == Table::npos) {
        raise(HostError::NotUpdatable, "Die Tabelle " + shape.base()->name() +
                                           " hat keine Spalte DSN und kann nicht über ein "
                                           "Recordset geschrieben werden.");
    }
    if (shape.key() == Shape::npos) {
        raise(HostError::NotUpdatable, "Das Recordset aus " + shape.base()->name() +
                                           " enthält die Spalte DSN nicht und kann nicht "
                                           "geschrieben werden.");
    }
}

void append_name(std::string& text, std::string_view name) {
    text += '"';
    text += name;
    text += '"';
}

// The parameters of "... WHERE DSN=?" and, where the version was read, "AND STAMP=?".
void append_identity(std::vector<Value>& values, const Shape& shape, const Row& original) {
    values.push_back(original[shape.key()].value());
    if (shape.version() != Shape::npos) {
        values.push_back(original[shape.version()].value());
    }
}

WriteStatement::Version version_rule(const Shape& shape) noexcept {
    if (shape.version() != Shape::npos) {
        return WriteStatement::Version::Checked;
    }
    return shape.base()->version() != Table::npos ? WriteStatement::Version::Raised
                                                  : WriteStatement::Version::None;
}

// The host's own values are written besides.
bool is_written(const Shape& shape, std::size_t column, const Cell& cell,
                std::span<const HostValue> host_values) {
    return cell.changed && column != shape.version() &&
           std::ranges::none_of(host_values, [&](const HostValue& value) {
               return value.column == shape.columns()[column].table_column;
           });
}

Value value_of(const HostValue& value) {
    return value.text ? Value(std::string_view(*value.text)) : Value();
}

// A value as a conflict's message quotes it.
std::string shown(const Cell& cell, ColumnType type) {
    if (cell.is_null()) {
        return "Null";
    }
    if (cell.kind == CellKind::Bytes) {
        return std::to_string(cell.size) + " Bytes";
    }
    return in_quotes(first_units(to_text(to_variant(cell, type)), 60));
}

}  // namespace

TableRule* RowWriter::rule_of(const Shape& shape) const noexcept {
    for (const auto& rule : rules_) {
        if (&rule->table() == shape.base()) {
            return rule.get();
        }
    }
    return nullptr;
}

bool RowWriter::is_single_statement(const ClientRecordSet& record_set) const noexcept {
    return record_set.changes().size() == 1 && rule_of(record_set.shape()) == nullptr;
}

bool RowWriter::only_adds(const ClientRecordSet& record_set) const noexcept {
    return rule_of(record_set.shape()) == nullptr &&
           std::ranges::all_of(record_set.changes(), [&](const ClientRecordSet::Change& change) {
               return record_set.state(change.row) == RowState::Added;
           });
}

void RowWriter::take_back(const ClientRecordSet& record_set) {
    const Shape& shape = record_set.shape();
    statement_.begin(WriteStatement::Action::Delete, *shape.base());
    for (const ClientRecordSet::Change& change : record_set.changes().first(written_)) {
        values_.assign(1, record_set.cells(change.row)[shape.key()].value());
        execute();
    }
}

SavedChanges RowWriter::write(const ClientRecordSet& record_set) {
    written_ = 0;
    require_key(record_set.shape());
    TableRule* const rule = rule_of(record_set.shape());
    SavedChanges saved;
    saved.versions.reserve(record_set.changes().size());
    for (const ClientRecordSet::Change& change : record_set.changes()) {
        if (rule == nullptr) {
            saved.versions.push_back(write_row(record_set, change, {}));
            ++written_;
            continue;
        }
        const RowChange row(record_set, change);
        if (row.state() == RowState::Gone) {
            saved.versions.push_back(0);
            continue;
        }
        const std::size_t first = saved.host_values.size();
        if (row.state() != RowState::Deleted) {
            rule->add_values(row, saved.host_values);
        }
        saved.versions.push_back(
            write_row(record_set, change, std::span(saved.host_values).subspan(first)));
        rule->follow(row);
    }
    return saved;
}

std::int64_t RowWriter::write_row(const ClientRecordSet& record_set,
                                  const ClientRecordSet::Change& change,
                                  std::span<const HostValue> host_values) {
    switch (record_set.state(change.row)) {
        case RowState::Added:
            return insert(record_set, change.row, host_values);
        case RowState::Changed:
            return update(record_set, change, host_values);
        case RowState::Deleted:
            remove(record_set, change);
            break;
        case RowState::Unchanged:
        case RowState::Gone:
            break;
    }
    return 0;
}

std::int64_t RowWriter::execute() {
    auto& entry = statements_.get(statement_.key(), [this] {
        return StatementCache<Nothing>::Entry{database_.prepare(statement_.text(), Author::Host),
                                              {}};
    });
    return entry.statement->execute(values_);
}

void RowWriter::add_values(const Shape& shape, const Row& cells,
                           std::span<const HostValue> host_values) {
    values_.clear();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (is_written(shape, i, cells[i], host_values)) {
            statement_.add(shape.columns()[i].table_column);
            values_.push_back(cells[i].value());
        }
    }
    for (const HostValue& value : host_values) {
        statement_.add(value.column);
        values_.push_back(value_of(value));
    }
}

std::int64_t RowWriter::insert(const ClientRecordSet& record_set, std::size_t row,
                               std::span<const HostValue> host_values) {
    const Shape& shape = record_set.shape();
    const Row cells = record_set.cells(row);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const Column& column = shape.columns()[i];
        if (column.required && column.writable && cells[i].is_null()) {
            raise(HostError::ValueRefused, shape.base()->name() + "." + column.name +
                                               " ist ein Pflichtfeld und nimmt kein Null auf.");
        }
    }
    statement_.begin(WriteStatement::Action::Insert, *shape.base());
    add_values(shape, cells, host_values);
    execute();
    return shape.version() == Shape::npos ? 0 : cells[shape.version()].integer;
}

std::int64_t RowWriter::update(const ClientRecordSet& record_set,
                               const ClientRecordSet::Change& change,
                               std::span<const HostValue> host_values) {
    const Shape& shape = record_set.shape();
    const bool has_version = shape.version() != Shape::npos;
    const std::int64_t version = has_version ? change.original[shape.version()].integer : 0;
    statement_.begin(WriteStatement::Action::Update, *shape.base(), version_rule(shape));
    add_values(shape, record_set.cells(change.row), host_values);
    if (values_.empty()) {
        return version;
    }
    if (has_version) {
        values_.emplace_back(version + 1);
    }
    append_identity(values_, shape, change.original);
    if (execute() == 0) {
        raise_conflict(record_set, change);
    }
    return has_version ? version + 1 : 0;
}

void RowWriter::remove(const ClientRecordSet& record_set, const ClientRecordSet::Change& change) {
    const Shape& shape = record_set.shape();
    const bool has_version = shape.version() != Shape::npos;
    statement_.begin(
        WriteStatement::Action::Delete, *shape.base(),
        has_version ? WriteStatement::Version::Checked : WriteStatement::Version::None);
    values_.clear();
    append_identity(values_, shape, change.original);
    if (execute() == 0) {
        raise_conflict(record_set, change);
    }
}

void RowWriter::raise_conflict(const ClientRecordSet& record_set,
                               const ClientRecordSet::Change& change) {
    const Shape& shape = record_set.shape();
    std::vector<std::size_t> positions;
    std::string text = "SELECT ";
    for (std::size_t i = 0; i < shape.columns().size(); ++i) {
        if (shape.columns()[i].writable && i != shape.version()) {
            append_name(text, shape.columns()[i].name_in_table());
            text += ',';
            positions.push_back(i);
        }
    }
    text.back() = ' ';
    text += "FROM ";
    append_name(text, shape.base()->name());
    text += " WHERE \"DSN\"=?";
    Rows present(positions.size());
    const Value key = change.original[shape.key()].value();
    database_.prepare(text, Author::Host)->query({&key, 1}, present);

    const std::string row = "Der Datensatz " + in_quotes(change.original[shape.key()].text()) +
                            " in " + shape.base()->name();
    if (present.size() == 0) {
        raise(HostError::RowChanged, row + " wurde inzwischen von anderer Seite gelöscht.");
    }
    std::string names;
    std::string values;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const std::size_t position = positions[i];
        const Cell& now = present[0][i];
        if (same_content(now, change.original[position])) {
            continue;
        }
        const Column& column = shape.columns()[position];
        values = names.empty() ? ": dort steht jetzt " + shown(now, column.type.type) +
                                     ", geschrieben werden sollte " +
                                     shown(record_set.cells(change.row)[position], column.type.type)
                               : std::string();
        names += (names.empty() ? "" : ", ") + column.name;
    }
    raise(HostError::RowChanged, row + " wurde inzwischen von anderer Seite geändert" +
                                     (names.empty() ? std::string() : " (" + names + ")") + values +
                                     ".");
}

}  // namespace cvdeveloper::standalone
