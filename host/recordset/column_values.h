#pragma once

#include "cvdeveloper/automation/variant.h"
#include "host/database/rows.h"
#include "host/recordset/shape.h"

// Between what scripts see of a field and what the database keeps of it.
namespace cvdeveloper::standalone {

Variant to_variant(const Cell& cell, ColumnType type);

// Errors: ValueRefused with table, column and limit; the cell is then unchanged.
void assign(Rows& rows, Cell& cell, const Column& column, const Variant& value);

// Whether a column's own value, read and assigned to the column again, is the very same cell. False
// also where finding out would take long.
bool survives_assignment(const Cell& cell, const Column& column) noexcept;

// ADO's number of the field's type.
std::int32_t ado_type(const Cell* cell, ColumnType type) noexcept;

}  // namespace cvdeveloper::standalone
