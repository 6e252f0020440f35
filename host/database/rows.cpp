#include "host/database/rows.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

namespace cvdeveloper::standalone {

namespace {

constexpr std::size_t largest_block = std::size_t{256} * 1024;

constexpr std::size_t aligned(std::size_t size) noexcept {
    return (size + alignof(Cell) - 1) / alignof(Cell) * alignof(Cell);
}

}  // namespace

static_assert(sizeof(Cell) == 16);

Value Cell::value() const noexcept {
    switch (kind) {
        case CellKind::Null:
            break;
        case CellKind::Integer:
            return integer;
        case CellKind::Double:
            return number;
        case CellKind::Text:
            return text();
        case CellKind::Bytes:
            return std::as_bytes(std::span(data, size));
    }
    return std::monostate{};
}

bool same_content(const Cell& left, const Cell& right) noexcept {
    if (left.kind != right.kind) {
        return false;
    }
    switch (left.kind) {
        case CellKind::Null:
            return true;
        case CellKind::Integer:
            return left.integer == right.integer;
        case CellKind::Double:
            return left.number == right.number;
        case CellKind::Text:
        case CellKind::Bytes:
            return left.text() == right.text();
    }
    return false;
}

std::byte* Rows::allocate(std::size_t size) {
    size = aligned(size);
    if (size > left_) {
        // Room for a handful of rows first, then ever larger blocks.
        const std::size_t first = std::max<std::size_t>(512, columns_ * sizeof(Cell) * 2);
        const std::size_t regular = next_block_ == 0 ? first : next_block_;
        next_block_ = std::min(regular * 2, std::max(largest_block, first));
        if (size > regular / 2) {
            // A piece of its own; what is left of the present block stays in use.
            blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
            return blocks_.back().get();
        }
        blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(regular));
        free_ = blocks_.back().get();
        left_ = regular;
    }
    std::byte* const piece = free_;
    free_ += size;
    left_ -= size;
    return piece;
}

Cell* Rows::allocate_cells() {
    std::byte* const place = allocate(std::max<std::size_t>(columns_, 1) * sizeof(Cell));
    auto* const cells = reinterpret_cast<Cell*>(place);
    std::uninitialized_value_construct_n(cells, columns_);
    return cells;
}

std::span<Cell> Rows::append() {
    rows_.push_back(allocate_cells());
    return {rows_.back(), columns_};
}

std::span<Cell> Rows::keep_copy(std::span<const Cell> cells) {
    Cell* const copy = allocate_cells();
    std::ranges::copy(cells, copy);
    return {copy, columns_};
}

const char* Rows::keep(const void* data, std::size_t size) {
    if (size > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("value of more than 4 GB");
    }
    if (size == 0) {
        return "";
    }
    std::byte* const place = allocate(size);
    std::memcpy(place, data, size);
    return reinterpret_cast<const char*>(place);
}

void Rows::set_text(Cell& cell, std::string_view text) {
    const char* const kept = keep(text.data(), text.size());
    cell.data = kept;
    cell.size = static_cast<std::uint32_t>(text.size());
    cell.kind = CellKind::Text;
}

void Rows::set_bytes(Cell& cell, std::span<const std::byte> bytes) {
    const char* const kept = keep(bytes.data(), bytes.size());
    cell.data = kept;
    cell.size = static_cast<std::uint32_t>(bytes.size());
    cell.kind = CellKind::Bytes;
}

void Rows::keep_content(Cell& cell) {
    if (cell.kind == CellKind::Text || cell.kind == CellKind::Bytes) {
        cell.data = keep(cell.data, cell.size);
    }
}

void Rows::set_null(Cell& cell) noexcept {
    cell.integer = 0;
    cell.size = 0;
    cell.kind = CellKind::Null;
}

void Rows::set_integer(Cell& cell, std::int64_t value) noexcept {
    cell.integer = value;
    cell.size = 0;
    cell.kind = CellKind::Integer;
}

void Rows::set_double(Cell& cell, double value) noexcept {
    cell.number = value;
    cell.size = 0;
    cell.kind = CellKind::Double;
}

}  // namespace cvdeveloper::standalone
