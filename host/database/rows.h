#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "host/database/block_pool.h"
#include "host/database/cell.h"

namespace cvdeveloper::standalone {

// Where a packed row keeps a field: the place among its cells, which are those that are not null.
using CellPlace = std::uint16_t;
inline constexpr CellPlace no_cell = 0xFFFF;

// Room for one row on its way into Rows, used again for each.
struct RowRoom {
    explicit RowRoom(std::size_t columns) : places(columns), cells(columns) {}
    std::vector<CellPlace> places;
    std::vector<Cell> cells;
};

// A row on its way into Rows, field by field. Texts and bytes are borrowed until it is there.
class RowInHand {
  public:
    explicit RowInHand(RowRoom& room) noexcept
        : places_(room.places.data()), cells_(room.cells.data()) {}

    void add_null() noexcept { places_[column_++] = no_cell; }
    void add_integer(std::int64_t value) noexcept { set_integer(add(), value); }
    void add_double(double value) noexcept { set_double(add(), value); }
    // Errors: more than 4 GB.
    void add_text(std::string_view text) { add_content(text, CellKind::Text); }
    void add_bytes(std::string_view bytes) { add_content(bytes, CellKind::Bytes); }

    [[nodiscard]] std::span<const CellPlace> places() const noexcept { return {places_, column_}; }
    [[nodiscard]] std::span<const Cell> cells() const noexcept { return {cells_, used_}; }
    // Bytes of all texts and bytes.
    [[nodiscard]] std::size_t content_size() const noexcept { return content_size_; }

  private:
    Cell& add() noexcept {
        places_[column_++] = static_cast<CellPlace>(used_);
        return cells_[used_++];
    }
    void add_content(std::string_view content, CellKind kind) {
        borrow_content(add(), content, kind);
        content_size_ += content.size();
    }

    CellPlace* places_;
    Cell* cells_;
    std::size_t column_ = 0;
    std::size_t used_ = 0;
    std::size_t content_size_ = 0;
};

// The fields of a row. Stays valid, and as it is, as long as the Rows that it comes from.
class Row {
  public:
    Row() = default;
    // Without places every column has its cell.
    Row(const CellPlace* places, const Cell* cells, std::size_t columns) noexcept
        : places_(places), cells_(cells), columns_(columns) {}

    [[nodiscard]] std::size_t size() const noexcept { return columns_; }
    [[nodiscard]] bool empty() const noexcept { return columns_ == 0; }
    [[nodiscard]] const Cell& operator[](std::size_t column) const noexcept {
        if (places_ == nullptr) {
            return cells_[column];
        }
        const CellPlace place = places_[column];
        return place == no_cell ? null_cell : cells_[place];
    }

  private:
    static constexpr Cell null_cell{};

    const CellPlace* places_ = nullptr;
    const Cell* cells_ = nullptr;
    std::size_t columns_ = 0;
};

// The rows of a result, packed: a row has cells for the fields that are not null, their texts
// follow in the same piece of memory, and rows with nulls in the same columns share the list of
// where each column is. Nothing moves once it is written.
class Rows {
  public:
    explicit Rows(std::size_t columns, std::shared_ptr<BlockPool> pool = nullptr) noexcept
        : columns_(columns), large_blocks_(std::move(pool)) {}

    [[nodiscard]] std::size_t size() const noexcept {
        return first_row_.cells == nullptr ? 0 : 1 + other_rows_.size();
    }
    [[nodiscard]] std::size_t columns() const noexcept { return columns_; }
    [[nodiscard]] Row operator[](std::size_t row) const noexcept {
        const Place& place = place_of(row);
        return {place.places, place.cells, columns_};
    }

    // A new last row, of as many fields as there are columns. Its texts and bytes are copied.
    void append(RowInHand row);
    // A new last row with these cells, which can be changed. Texts and bytes stay where they are.
    std::span<Cell> append_editable(std::span<const Cell> cells);
    // The row's cells from now on, which can be changed. A Row got before shows what it did.
    std::span<Cell> edit(std::size_t row);
    // The cells of a row that was appended editable or edited.
    [[nodiscard]] std::span<Cell> editable(std::size_t row) noexcept {
        return {place_of(row).cells, columns_};
    }

    // Errors: more than 4 GB.
    void set_text(Cell& cell, std::string_view text) {
        borrow_content(cell, keep(text), CellKind::Text);
    }
    void set_bytes(Cell& cell, std::span<const std::byte> bytes);
    // The text or bytes of a cell copied from other rows become these rows' own.
    void keep_content(Cell& cell);

  private:
    struct Place {
        const CellPlace* places = nullptr;
        Cell* cells = nullptr;
    };

    [[nodiscard]] const Place& place_of(std::size_t row) const noexcept {
        return row == 0 ? first_row_ : other_rows_[row - 1];
    }
    void add_row(Place place);
    const CellPlace* keep_places(std::span<const CellPlace> places);
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
    std::string_view keep(std::string_view content);

    std::size_t columns_;
    // Most results have one row and need one block: neither costs a list.
    Place first_row_;
    std::vector<Place> other_rows_;
    const CellPlace* last_places_ = nullptr;
    std::unique_ptr<std::byte[]> first_block_;
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    PooledBlocks large_blocks_;
    std::byte* free_ = nullptr;
    std::size_t left_ = 0;
    std::size_t next_block_ = 0;
};

}  // namespace cvdeveloper::standalone
