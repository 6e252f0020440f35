#include "host/recordset/fields.h"

#include <algorithm>
#include <limits>

#include "cvdeveloper/automation/runtime_errors.h"
#include "host/recordset/column_values.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

std::int32_t Fields::count() {
    return record_set_->field_count();
}

ObjectRef Fields::item(const Variant& name_or_position) {
    return record_set_->item(name_or_position);
}

const InterfaceTable& Fields::table() const noexcept {
    static constexpr Parameter item_parameters[] = {
        {.name = "Index", .help = "Name oder Nummer (ab 0) des Feldes"}};
    static constexpr Operation rows[] = {
        {.id = 0,
         .name = "Item",
         .kind = OperationKind::Get,
         .binding = bind<&Fields::item>,
         .parameters = item_parameters,
         .help = {.what = "One field by name or position.",
                  .errors = "3265 for a name or position that there is not."}},
        {.id = 1,
         .name = "Count",
         .kind = OperationKind::Get,
         .binding = bind<&Fields::count>,
         .parameters = {},
         .help = {.what = "The number of fields."}},
    };
    static const InterfaceTable members("Fields", "The fields of a record set.",
                                        {{"fields", "Fields of a record set.", rows}});
    return members;
}

std::string Field::name() {
    return column().name;
}

std::int32_t Field::type() {
    return ado_type(record_set_->current_cell_if_any(position_), column().type.type);
}

Variant Field::value() {
    return to_variant(record_set_->current_cell(position_), column().type.type);
}

void Field::set_value(const Variant& value) {
    record_set_->set_at(position_, value);
}

Variant Field::get_chunk(std::int32_t size) {
    if (size < 0) {
        raise(RuntimeError::InvalidCall, "GetChunk");
    }
    const Cell& cell = record_set_->current_cell(position_);
    if (cell.kind != CellKind::Text && cell.kind != CellKind::Bytes) {
        return chunk_begin_++ == 0 ? value() : Variant(Null{});
    }
    if (chunk_of_ != cell.data) {
        chunk_of_ = cell.data;
        chunk_begin_ = 0;
    }
    const std::string_view rest =
        cell.text().substr(std::min<std::size_t>(chunk_begin_, cell.size));
    if (rest.empty()) {
        chunk_of_ = nullptr;
        return Null{};
    }
    if (cell.kind == CellKind::Text) {
        std::string_view piece = first_units(rest, static_cast<std::size_t>(size));
        // A character of two units does not fit into a piece of one: it comes whole.
        if (piece.empty() && size > 0) {
            piece = first_units(rest, 2);
        }
        chunk_begin_ += piece.size();
        return piece;
    }
    const auto bytes =
        std::as_bytes(std::span(rest)).first(std::min(rest.size(), static_cast<std::size_t>(size)));
    chunk_begin_ += bytes.size();
    return Bytes(bytes.begin(), bytes.end());
}

std::int32_t Field::actual_size() {
    const Cell& cell = record_set_->current_cell(position_);
    switch (cell.kind) {
        case CellKind::Null:
            return 0;
        case CellKind::Text:
            return static_cast<std::int32_t>(length_in_units(cell.text()));
        case CellKind::Bytes:
            return static_cast<std::int32_t>(cell.size);
        case CellKind::Integer:
        case CellKind::Double:
            break;
    }
    return defined_size();
}

std::int32_t Field::defined_size() {
    switch (column().type.type) {
        case ColumnType::Text:
            return column().type.length;
        case ColumnType::Int16:
            return 2;
        case ColumnType::Int32:
            return 4;
        case ColumnType::Double:
        case ColumnType::Date:
            return 8;
        case ColumnType::LongText:
        case ColumnType::Bytes:
        case ColumnType::Any:
            break;
    }
    return std::numeric_limits<std::int32_t>::max();
}

const InterfaceTable& Field::table() const noexcept {
    static constexpr Parameter value_parameters[] = {{.name = "Value", .help = "Der neue Wert"}};
    static constexpr Parameter chunk_parameters[] = {
        {.name = "Size", .help = "Zeichen oder Bytes, die höchstens geliefert werden"}};
    static constexpr Operation rows[] = {
        {.id = 0,
         .name = "Value",
         .kind = OperationKind::Get,
         .binding = bind<&Field::value>,
         .parameters = {},
         .help = {.what = "The field's value in the current row.",
                  .errors = "3021 where there is no current row."}},
        {.id = 0,
         .name = "Value",
         .kind = OperationKind::Put,
         .binding = bind<&Field::set_value>,
         .parameters = value_parameters,
         .help = {.what = "Changes the value; UpdateRecordset writes it.",
                  .errors = "The value does not fit the column: text with column and limit."}},
        {.id = 1,
         .name = "Name",
         .kind = OperationKind::Get,
         .binding = bind<&Field::name>,
         .parameters = {},
         .help = {.what = "The column's name or alias."}},
        {.id = 2,
         .name = "Type",
         .kind = OperationKind::Get,
         .binding = bind<&Field::type>,
         .parameters = {},
         .help = {.what = "The type's number: 2, 3, 5, 7, 200, 201 or 205."}},
        {.id = 3,
         .name = "GetChunk",
         .kind = OperationKind::Method,
         .binding = bind<&Field::get_chunk>,
         .parameters = chunk_parameters,
         .help = {.what = "The next piece of a long value; null when nothing is left."}},
        {.id = 4,
         .name = "ActualSize",
         .kind = OperationKind::Get,
         .binding = bind<&Field::actual_size>,
         .parameters = {},
         .help = {.what = "The length of the value, in characters or bytes."}},
        {.id = 5,
         .name = "DefinedSize",
         .kind = OperationKind::Get,
         .binding = bind<&Field::defined_size>,
         .parameters = {},
         .help = {.what = "The length that the column takes."}},
    };
    static const InterfaceTable members("Field", "One field of a record set's current row.",
                                        {{"field", "One field and its value.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
