#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <stdexcept>
#include <string_view>

#include "host/database/value.h"

namespace cvdeveloper::standalone {

enum class CellKind : std::uint8_t { Null, Integer, Double, Text, Bytes };

// One field of one row, as the database keeps it. Texts and bytes lie elsewhere, as a rule in the
// memory of the Rows.
struct Cell {
    union {
        std::int64_t integer = 0;
        double number;
        const char* data;
    };
    std::uint32_t size = 0;
    CellKind kind = CellKind::Null;
    bool changed = false;  // set since the row was read or saved

    [[nodiscard]] bool is_null() const noexcept { return kind == CellKind::Null; }
    [[nodiscard]] bool has_content() const noexcept {
        return kind == CellKind::Text || kind == CellKind::Bytes;
    }
    [[nodiscard]] std::string_view text() const noexcept { return {data, size}; }
    [[nodiscard]] Value value() const noexcept;
};
static_assert(sizeof(Cell) == 16);

// What is set besides the value stays as it is: whether the cell was changed.
inline void set_null(Cell& cell) noexcept {
    cell.integer = 0;
    cell.size = 0;
    cell.kind = CellKind::Null;
}
inline void set_integer(Cell& cell, std::int64_t value) noexcept {
    cell.integer = value;
    cell.size = 0;
    cell.kind = CellKind::Integer;
}
inline void set_double(Cell& cell, double value) noexcept {
    cell.number = value;
    cell.size = 0;
    cell.kind = CellKind::Double;
}
// Errors: more than 4 GB.
inline void borrow_content(Cell& cell, std::string_view content, CellKind kind) {
    if (content.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("value of more than 4 GB");
    }
    cell.data = content.data();
    cell.size = static_cast<std::uint32_t>(content.size());
    cell.kind = kind;
}

bool same_content(const Cell& left, const Cell& right) noexcept;

}  // namespace cvdeveloper::standalone
