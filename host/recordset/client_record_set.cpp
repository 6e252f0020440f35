#include "host/recordset/client_record_set.h"

#include <algorithm>

#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/recordset/column_values.h"
#include "host/recordset/fields.h"

namespace cvdeveloper::standalone {

namespace {

bool is_deleted(RowState state) noexcept {
    return state == RowState::Deleted || state == RowState::Gone;
}

}  // namespace

ClientRecordSet::ClientRecordSet(std::shared_ptr<const Shape> shape, Rows rows)
    : shape_(std::move(shape)), rows_(std::move(rows)) {}

Guard* ClientRecordSet::guard() noexcept {
    return &shape_->owner()->guard;
}

void ClientRecordSet::require_open() const {
    if (!is_open_) {
        raise(HostError::Closed, "Das Recordset ist geschlossen.");
    }
}

// Apart from the check, which is made for each field.
void ClientRecordSet::raise_no_current_row() const {
    require_open();
    raise(HostError::NoCurrentRow,
          rows_.size() == 0
              ? "Das Recordset aus " + std::string(shape_->table_name()) + " ist leer (EOF)."
              : "Das Recordset aus " + std::string(shape_->table_name()) +
                    " steht auf keinem Datensatz (BOF oder EOF).");
}

RowState ClientRecordSet::state(std::size_t row) const noexcept {
    return row < states_.size() ? states_[row] : RowState::Unchanged;
}

bool ClientRecordSet::is_visible(std::size_t row) const noexcept {
    return !is_deleted(state(row));
}

bool ClientRecordSet::at_end() {
    require_open();
    return at_ >= rows_.size();
}

bool ClientRecordSet::at_begin() {
    require_open();
    return before_first_ || record_count() == 0;
}

std::int32_t ClientRecordSet::record_count() {
    require_open();
    const auto hidden = std::ranges::count_if(states_, is_deleted);
    return static_cast<std::int32_t>(static_cast<std::ptrdiff_t>(rows_.size()) - hidden);
}

void ClientRecordSet::move_first() {
    require_open();
    at_ = 0;
    before_first_ = false;
    while (at_ < rows_.size() && !is_visible(at_)) {
        ++at_;
    }
}

void ClientRecordSet::move_next() {
    require_open();
    if (at_ >= rows_.size()) {
        require_current_row();
    }
    if (before_first_) {
        move_first();
        return;
    }
    do {
        ++at_;
    } while (at_ < rows_.size() && !is_visible(at_));
}

void ClientRecordSet::move_previous() {
    require_open();
    if (before_first_) {
        require_current_row();
    }
    while (at_ > 0) {
        --at_;
        if (is_visible(at_)) {
            return;
        }
    }
    before_first_ = true;
}

void ClientRecordSet::move_last() {
    require_open();
    before_first_ = false;
    std::size_t last = rows_.size();
    while (last > 0 && !is_visible(last - 1)) {
        --last;
    }
    at_ = last == 0 ? rows_.size() : last - 1;
}

void ClientRecordSet::note_change(RowState state, Row original) {
    if (states_.size() < rows_.size()) {
        states_.resize(rows_.size(), RowState::Unchanged);
    }
    const RowState before = std::exchange(states_[at_], state);
    if (before == RowState::Unchanged) {
        changes_.push_back({at_, original});
    }
}

void ClientRecordSet::add_new() {
    require_open();
    rows_.append_editable(shape_->new_row());
    at_ = rows_.size() - 1;
    before_first_ = false;
    note_change(RowState::Added, {});
}

void ClientRecordSet::remove() {
    require_current_row();
    switch (state(at_)) {
        case RowState::Unchanged:
            // The row's own cells serve as the original: a deleted row takes no more changes.
            note_change(RowState::Deleted, rows_[at_]);
            break;
        case RowState::Changed:
            states_[at_] = RowState::Deleted;
            break;
        case RowState::Added:
            states_[at_] = RowState::Gone;
            break;
        case RowState::Deleted:
        case RowState::Gone:
            break;
    }
}

std::int32_t ClientRecordSet::field_count() {
    return static_cast<std::int32_t>(shape_->columns().size());
}

std::string ClientRecordSet::field_name(std::int32_t position) {
    return shape_->columns()[position_of(Variant(position))].name;
}

std::size_t ClientRecordSet::position_of(std::string_view name) const {
    const std::size_t position = shape_->find(name);
    if (position == Shape::npos) {
        shape_->raise_unknown(name);
    }
    return position;
}

std::size_t ClientRecordSet::position_of(const Variant& name_or_position) const {
    if (const auto* name = name_or_position.get_if<std::string>()) {
        return position_of(std::string_view(*name));
    }
    const std::int32_t position = to_int32(name_or_position);
    if (position < 0 || static_cast<std::size_t>(position) >= shape_->columns().size()) {
        raise(HostError::UnknownField, "Ein Feld mit der Nummer " + std::to_string(position) +
                                           " gibt es in " + std::string(shape_->table_name()) +
                                           " nicht.");
    }
    return static_cast<std::size_t>(position);
}

Variant ClientRecordSet::value(std::string_view name) {
    const std::size_t position = position_of(name);
    return to_variant(current_cell(position), shape_->columns()[position].type.type);
}

Variant ClientRecordSet::value_at(std::int32_t position) {
    const std::size_t at = position_of(Variant(position));
    return to_variant(current_cell(at), shape_->columns()[at].type.type);
}

void ClientRecordSet::set_value(std::string_view name, Variant value) {
    set_at(position_of(name), value);
}

void ClientRecordSet::plan_copy(const Shape& source, std::string_view excluded) {
    copy_plan_.source = &source;
    copy_plan_.excluded = excluded;
    copy_plan_.steps.clear();
    for (std::size_t from = 0; from < source.columns().size(); ++from) {
        const Column& column = source.columns()[from];
        if (host::names_field(excluded, column.name)) {
            continue;
        }
        const std::size_t to = shape_->find(column.name);
        const bool same_column = to != Shape::npos && column.table != nullptr &&
                                 shape_->columns()[to].table == column.table &&
                                 shape_->columns()[to].table_column == column.table_column;
        copy_plan_.steps.push_back({from, to, same_column});
    }
}

void ClientRecordSet::copy_fields(host::RecordSet& source, std::string_view excluded) {
    auto* const other = dynamic_cast<ClientRecordSet*>(&source);
    if (other == nullptr) {
        host::RecordSet::copy_fields(source, excluded);
        return;
    }
    if (copy_plan_.source != other->shape_.get() || copy_plan_.excluded != excluded) {
        plan_copy(*other->shape_, excluded);
    }
    bool row_is_checked = false;
    for (const CopyPlan::Step& step : copy_plan_.steps) {
        const Cell& cell = other->current_cell(step.from);
        const Column& from = other->shape_->columns()[step.from];
        if (step.to == Shape::npos) {
            shape_->raise_unknown(from.name);
        }
        const Column& to = shape_->columns()[step.to];
        if (step.same_column && survives_assignment(cell, to)) {
            // What is true of the row stays so.
            if (!row_is_checked) {
                require_writable(step.to);
                row_is_checked = true;
            } else if (!to.writable) {
                raise_not_writable(step.to);
            }
            Cell written = cell;
            rows_.keep_content(written);
            write(step.to, written);
        } else {
            set_at(step.to, to_variant(cell, from.type.type));
        }
    }
}

void ClientRecordSet::set_at(std::size_t position, const Variant& value) {
    require_writable(position);
    Cell written = rows_[at_][position];
    assign(rows_, written, shape_->columns()[position], value);
    write(position, written);
}

void ClientRecordSet::require_writable(std::size_t position) const {
    require_current_row();
    if (!is_visible(at_) || !shape_->columns()[position].writable) {
        raise_not_writable(position);
    }
}

void ClientRecordSet::raise_not_writable(std::size_t position) const {
    if (!is_visible(at_)) {
        raise(HostError::NoCurrentRow, "Der Datensatz aus " + std::string(shape_->table_name()) +
                                           " ist gelöscht und nimmt keine Änderung mehr an.");
    }
    raise(HostError::NotUpdatable, "Das Feld '" + shape_->columns()[position].name +
                                       "' gehört nicht zu " + std::string(shape_->table_name()) +
                                       " und kann nicht geschrieben werden.");
}

void ClientRecordSet::write(std::size_t position, Cell written) {
    if (state(at_) == RowState::Unchanged) {
        note_change(RowState::Changed, rows_[at_]);
        rows_.edit(at_);
    }
    written.changed = true;
    rows_.editable(at_)[position] = written;
}

void ClientRecordSet::mark_saved(const SavedChanges& saved) {
    for (const HostValue& value : saved.host_values) {
        show_host_value(value);
    }
    for (std::size_t i = 0; i < changes_.size(); ++i) {
        const std::size_t row = changes_[i].row;
        if (is_deleted(states_[row])) {
            states_[row] = RowState::Gone;
            continue;
        }
        states_[row] = RowState::Unchanged;
        const std::span<Cell> cells = rows_.editable(row);
        for (Cell& cell : cells) {
            cell.changed = false;
        }
        if (shape_->version() != Shape::npos) {
            set_integer(cells[shape_->version()], saved.versions[i]);
        }
    }
    changes_.clear();
}

void ClientRecordSet::show_host_value(const HostValue& value) {
    for (std::size_t i = 0; i < shape_->columns().size(); ++i) {
        const Column& column = shape_->columns()[i];
        if (column.writable && column.table_column == value.column) {
            Cell& cell = rows_.editable(value.row)[i];
            if (value.text) {
                rows_.set_text(cell, *value.text);
            } else {
                set_null(cell);
            }
        }
    }
}

void ClientRecordSet::update() {
    require_open();
}

void ClientRecordSet::close() {
    require_open();
    is_open_ = false;
    rows_ = Rows(shape_->columns().size());
    states_.clear();
    changes_.clear();
    at_ = 0;
}

ObjectRef ClientRecordSet::item(const Variant& name_or_position) {
    return make_object<Field>(Ref<ClientRecordSet>(this), position_of(name_or_position));
}

ObjectRef ClientRecordSet::fields(const Variant& name_or_position) {
    if (!name_or_position.is<Missing>()) {
        return item(name_or_position);
    }
    return make_object<Fields>(Ref<ClientRecordSet>(this));
}

const InterfaceTable& ClientRecordSet::table() const noexcept {
    static constexpr Parameter item_parameters[] = {
        {.name = "Index", .help = "Name oder Nummer (ab 0) des Feldes"}};
    static constexpr Parameter fields_parameters[] = {{.name = "Index",
                                                       .help = "Name oder Nummer (ab 0) des Feldes",
                                                       .default_value = Missing{}}};
    static constexpr Operation rows[] = {
        {.id = 0,
         .name = "Item",
         .kind = OperationKind::Get,
         .binding = bind<&ClientRecordSet::item>,
         .parameters = item_parameters,
         .help = {.what = "One field of the current row.",
                  .errors = "3265 for a name or position that there is not."}},
        {.id = 1,
         .name = "EOF",
         .kind = OperationKind::Get,
         .binding = bind<&ClientRecordSet::at_end>,
         .parameters = {},
         .help = {.what = "Whether the position is behind the last row."}},
        {.id = 2,
         .name = "BOF",
         .kind = OperationKind::Get,
         .binding = bind<&ClientRecordSet::at_begin>,
         .parameters = {},
         .help = {.what = "Whether the position is before the first row."}},
        {.id = 3,
         .name = "RecordCount",
         .kind = OperationKind::Get,
         .binding = bind<&ClientRecordSet::record_count>,
         .parameters = {},
         .help = {.what = "The number of rows."}},
        {.id = 4,
         .name = "MoveFirst",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::move_first>,
         .parameters = {},
         .help = {.what = "Goes to the first row."}},
        {.id = 5,
         .name = "MoveNext",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::move_next>,
         .parameters = {},
         .help = {.what = "Goes to the next row, or behind the last.",
                  .errors = "3021 at the end."}},
        {.id = 6,
         .name = "MovePrevious",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::move_previous>,
         .parameters = {},
         .help = {.what = "Goes to the previous row, or before the first.",
                  .errors = "3021 before the first."}},
        {.id = 7,
         .name = "MoveLast",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::move_last>,
         .parameters = {},
         .help = {.what = "Goes to the last row."}},
        {.id = 8,
         .name = "AddNew",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::add_new>,
         .parameters = {},
         .help = {.what = "Appends a row with the database's defaults and goes to it."}},
        {.id = 9,
         .name = "Delete",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::remove>,
         .parameters = {},
         .help = {.what = "Deletes the current row; it stays current until the next move.",
                  .errors = "3021 where there is no current row."}},
        {.id = 10,
         .name = "Update",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::update>,
         .parameters = {},
         .help = {.what = "Does nothing: UpdateRecordset of the session writes the changes."}},
        {.id = 11,
         .name = "Close",
         .kind = OperationKind::Method,
         .binding = bind<&ClientRecordSet::close>,
         .parameters = {},
         .help = {.what = "Gives up the rows."}},
        {.id = 12,
         .name = "Fields",
         .kind = OperationKind::Get,
         .binding = bind<&ClientRecordSet::fields>,
         .parameters = fields_parameters,
         .help = {.what = "All fields, or one by name or position."}},
    };
    static const InterfaceTable members(
        "Recordset", "Rows read from the database, and their changes.",
        {{"recordset", "Rows of a statement and moving among them.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
