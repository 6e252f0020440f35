#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "host/database/block_pool.h"
#include "host/database/value.h"

namespace cvdeveloper::standalone {

enum class CellKind : std::uint8_t { Null, Integer, Double, Text, Bytes };

// One field of one row, as the database keeps it. Texts and bytes lie in the rows' own memory.
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
    [[nodiscard]] std::string_view text() const noexcept { return {data, size}; }
    [[nodiscard]] Value value() const noexcept;
};

bool same_content(const Cell& left, const Cell& right) noexcept;

// The rows of a result, packed: the fields of a row lie side by side, texts follow in the same
// blocks. Nothing moves once it is written.
class Rows {
  public:
    explicit Rows(std::size_t columns, std::shared_ptr<BlockPool> pool = nullptr) noexcept
        : columns_(columns), large_blocks_(std::move(pool)) {}

    [[nodiscard]] std::size_t size() const noexcept {
        return first_row_ == nullptr ? 0 : 1 + other_rows_.size();
    }
    [[nodiscard]] std::size_t columns() const noexcept { return columns_; }
    [[nodiscard]] std::span<Cell> operator[](std::size_t row) const noexcept {
        return {row == 0 ? first_row_ : other_rows_[row - 1], columns_};
    }

    // A new last row of nulls.
    std::span<Cell> append();
    // A new last row whose cells all have to be set.
    std::span<Cell> append_to_be_set();
    // A copy of a row's cells that is no row itself.
    std::span<Cell> keep_copy(std::span<const Cell> cells);

    void set_text(Cell& cell, std::string_view text);
    void set_bytes(Cell& cell, std::span<const std::byte> bytes);
    // The text or bytes of a cell copied from other rows become these rows' own.
    void keep_content(Cell& cell);
    static void set_null(Cell& cell) noexcept { set_integer(cell, 0, CellKind::Null); }
    static void set_integer(Cell& cell, std::int64_t value) noexcept {
        set_integer(cell, value, CellKind::Integer);
    }
    static void set_double(Cell& cell, double value) noexcept {
        cell.number = value;
        cell.size = 0;
        cell.kind = CellKind::Double;
    }

  private:
    static void set_integer(Cell& cell, std::int64_t value, CellKind kind) noexcept {
        cell.integer = value;
        cell.size = 0;
        cell.kind = kind;
    }

    std::byte* allocate(std::size_t size) {
        size = (size + alignof(Cell) - 1) / alignof(Cell) * alignof(Cell);
        if (size > left_) {
            return allocate_in_new_block(size);
        }
        std::byte* const piece = free_;
        free_ += size;
        left_ -= size;
        return piece;
    }
    std::byte* allocate_in_new_block(std::size_t size);
    Cell* allocate_cells();
    std::byte* add_block(std::size_t size);
    const char* keep(const void* data, std::size_t size);

    std::size_t columns_;
    // Most results have one row and need one block: neither costs a list.
    Cell* first_row_ = nullptr;
    std::vector<Cell*> other_rows_;
    std::unique_ptr<std::byte[]> first_block_;
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    PooledBlocks large_blocks_;
    std::byte* free_ = nullptr;
    std::size_t left_ = 0;
    std::size_t next_block_ = 0;
};

}  // namespace cvdeveloper::standalone
