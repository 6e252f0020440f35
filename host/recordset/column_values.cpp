#include "host/recordset/column_values.h"

#include <limits>
#include <string>
#include <utility>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/object.h"
#include "host/database/date_text.h"
#include "host/errors.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

std::string place_of(const Column& column) {
    return (column.table == nullptr ? std::string() : column.table->name() + ".") + column.name;
}

[[noreturn]] void refuse(const Column& column, const std::string& why) {
    raise(HostError::ValueRefused, place_of(column) + " " + why);
}

std::string shown(const Variant& value) {
    try {
        return in_quotes(first_units(to_text(value), 60));
    } catch (const AutomationError&) {
        return "Der Wert";
    }
}

// The conversion's own error says only "type mismatch": name the column and the value.
template <class Convert>
auto converted(const Column& column, const Variant& value, std::string_view expected,
               Convert convert) {
    try {
        return convert(value);
    } catch (const AutomationError&) {
        refuse(column,
               "nimmt " + std::string(expected) + " auf; " + shown(value) + " passt nicht.");
    }
}

Date date_in(const Variant& value) {
    if (const auto* text = value.get_if<std::string>()) {
        if (const auto date = parse_date_text(*text)) {
            return *date;
        }
    }
    return to_date(value);
}

void assign_text(Rows& rows, Cell& cell, const Column& column, std::string_view text) {
    const auto limit = static_cast<std::size_t>(column.type.length);
    if (column.type.type == ColumnType::Text && text.size() > limit) {
        if (const std::size_t length = length_in_units(text); length > limit) {
            refuse(column, "nimmt höchstens " + std::to_string(limit) +
                               " Zeichen auf; der Text hat " + std::to_string(length) + ".");
        }
    }
    rows.set_text(cell, text);
}

void assign_bytes(Rows& rows, Cell& cell, const Column& column, const Variant& value) {
    const auto* bytes = value.get_if<Bytes>();
    if (bytes == nullptr) {
        refuse(column, "nimmt nur Bytes auf.");
    }
    rows.set_bytes(cell, *bytes);
}

void assign_date(Rows& rows, Cell& cell, const Column& column, const Variant& value) {
    const Date date = converted(column, value, "ein Datum", date_in);
    const auto text = date_text(date);
    if (!text) {
        refuse(column, "nimmt ein Datum der Jahre 100 bis 9999 auf.");
    }
    rows.set_text(cell, *text);
}

Variant integer_variant(std::int64_t value, ColumnType type) {
    if (type == ColumnType::Int16 && std::in_range<std::int16_t>(value)) {
        return static_cast<std::int16_t>(value);
    }
    if (type == ColumnType::Double || !std::in_range<std::int32_t>(value)) {
        return static_cast<double>(value);
    }
    return static_cast<std::int32_t>(value);
}

Variant bytes_variant(const Cell& cell) {
    const auto bytes = std::as_bytes(std::span(cell.data, cell.size));
    return Bytes(bytes.begin(), bytes.end());
}

}  // namespace

Variant to_variant(const Cell& cell, ColumnType type) {
    switch (cell.kind) {
        case CellKind::Null:
            break;
        case CellKind::Integer:
            if (type == ColumnType::Date) {
                return Date{static_cast<double>(cell.integer)};
            }
            return integer_variant(cell.integer, type);
        case CellKind::Double:
            if (type == ColumnType::Date) {
                return Date{cell.number};
            }
            return cell.number;
        case CellKind::Text:
            if (type == ColumnType::Date) {
                if (const auto date = parse_date_text(cell.text())) {
                    return *date;
                }
            }
            return cell.text();
        case CellKind::Bytes:
            return bytes_variant(cell);
    }
    return Null{};
}

void assign(Rows& rows, Cell& cell, const Column& column, const Variant& value) {
    if (value.is<Null>() || value.is<Empty>()) {
        if (column.required) {
            refuse(column, "ist ein Pflichtfeld und nimmt kein Null auf.");
        }
        set_null(cell);
        return;
    }
    switch (column.type.type) {
        case ColumnType::Text:
        case ColumnType::LongText:
            if (const auto* text = value.get_if<std::string>()) {
                assign_text(rows, cell, column, *text);
            } else {
                assign_text(rows, cell, column,
                            converted(column, value, "Text",
                                      [](const Variant& from) { return to_text(from); }));
            }
            break;
        case ColumnType::Bytes:
            assign_bytes(rows, cell, column, value);
            break;
        case ColumnType::Int16:
            set_integer(cell, converted(column, value, "eine ganze Zahl (16 Bit)", to_int16));
            break;
        case ColumnType::Int32:
            set_integer(cell, converted(column, value, "eine ganze Zahl (32 Bit)", to_int32));
            break;
        case ColumnType::Double:
            set_double(cell, converted(column, value, "eine Zahl", to_double));
            break;
        case ColumnType::Date:
            assign_date(rows, cell, column, value);
            break;
        case ColumnType::Any:
            refuse(column, "ist ein Ausdruck und kann nicht geschrieben werden.");
    }
}

bool survives_assignment(const Cell& cell, const Column& column) noexcept {
    constexpr std::size_t whole_date = std::string_view("2026-03-01 14:30:00").size();
    const ColumnType type = column.type.type;
    switch (cell.kind) {
        case CellKind::Null:
            return !column.required;
        case CellKind::Integer:
            return (type == ColumnType::Int16 && std::in_range<std::int16_t>(cell.integer)) ||
                   (type == ColumnType::Int32 && std::in_range<std::int32_t>(cell.integer));
        case CellKind::Double:
            return type == ColumnType::Double;
        case CellKind::Text:
            // No text has more characters than bytes.
            return type == ColumnType::LongText ||
                   (type == ColumnType::Text &&
                    std::cmp_less_equal(cell.size, column.type.length)) ||
                   (type == ColumnType::Date && cell.size == whole_date &&
                    parse_date_text(cell.text()).has_value());
        case CellKind::Bytes:
            return type == ColumnType::Bytes;
    }
    return false;
}

std::int32_t ado_type(const Cell* cell, ColumnType type) noexcept {
    switch (type) {
        case ColumnType::Text:
            return 200;
        case ColumnType::LongText:
            return 201;
        case ColumnType::Bytes:
            return 205;
        case ColumnType::Int16:
            return 2;
        case ColumnType::Int32:
            return 3;
        case ColumnType::Double:
            return 5;
        case ColumnType::Date:
            return 7;
        case ColumnType::Any:
            break;
    }
    switch (cell == nullptr ? CellKind::Null : cell->kind) {
        case CellKind::Integer:
            return 3;
        case CellKind::Double:
            return 5;
        case CellKind::Bytes:
            return 205;
        case CellKind::Null:
        case CellKind::Text:
            break;
    }
    return 200;
}

}  // namespace cvdeveloper::standalone
