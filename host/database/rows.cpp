#include "host/database/rows.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

namespace cvdeveloper::standalone {

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

std::byte* Rows::allocate_in_new_block(std::size_t size) {
    // Room for a handful of rows first, then ever larger blocks.
    const std::size_t first = std::max<std::size_t>(512, columns_ * sizeof(Cell) * 2);
    const std::size_t regular = next_block_ == 0 ? first : next_block_;
    next_block_ = std::min(regular * 2, std::max(BlockPool::block_size, first));
    if (size > regular / 2) {
        // A piece of its own; what is left of the present block stays in use.
        blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
        return blocks_.back().get();
    }
    std::byte* const block = add_block(regular);
    free_ = block + size;
    left_ = regular - size;
    return block;
}

std::byte* Rows::add_block(std::size_t size) {
    if (size == BlockPool::block_size) {
        return large_blocks_.add();
    }
    auto block = std::make_unique_for_overwrite<std::byte[]>(size);
    std::byte* const place = block.get();
    if (first_block_ == nullptr) {
        first_block_ = std::move(block);
    } else {
        blocks_.push_back(std::move(block));
    }
    return place;
}

Cell* Rows::allocate_cells() {
    return reinterpret_cast<Cell*>(allocate(std::max<std::size_t>(columns_, 1) * sizeof(Cell)));
}

std::span<Cell> Rows::append() {
    const std::span<Cell> cells = append_to_be_set();
    std::uninitialized_value_construct_n(cells.data(), columns_);
    return cells;
}

std::span<Cell> Rows::append_to_be_set() {
    Cell* const cells = allocate_cells();
    if (first_row_ == nullptr) {
        first_row_ = cells;
    } else {
        other_rows_.push_back(cells);
    }
    return {cells, columns_};
}

std::span<Cell> Rows::keep_copy(std::span<const Cell> cells) {
    Cell* const copy = allocate_cells();
    std::ranges::uninitialized_copy(cells, std::span(copy, columns_));
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

}  // namespace cvdeveloper::standalone
