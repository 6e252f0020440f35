#include "host/database/rows.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace cvdeveloper::standalone {

std::byte* Rows::allocate_in_new_block(std::size_t size) {
    // Room for a handful of rows first, then ever larger blocks.
    const std::size_t first = std::max<std::size_t>(512, columns_ * sizeof(Cell) * 2);
    const std::size_t regular = next_block_ == 0 ? first : next_block_;
    next_block_ = std::min(regular * 2, std::max(BlockPool::block_size, first));
    if (size > regular || (free_ != nullptr && size > regular / 2)) {
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

void Rows::add_row(Place place) {
    if (first_row_.cells == nullptr) {
        first_row_ = place;
    } else {
        other_rows_.push_back(place);
    }
}

// Rows of one result mostly have their nulls in the same columns: these are looked at first.
const CellPlace* Rows::keep_places(std::span<const CellPlace> places) {
    if (last_places_ == nullptr ||
        std::memcmp(last_places_, places.data(), places.size_bytes()) != 0) {
        auto* const kept = reinterpret_cast<CellPlace*>(allocate(places.size_bytes()));
        std::ranges::uninitialized_copy(places, std::span(kept, places.size()));
        last_places_ = kept;
    }
    return last_places_;
}

void Rows::append(RowInHand row) {
    const std::span<const Cell> cells = row.cells();
    std::byte* const piece =
        allocate(std::max<std::size_t>(cells.size_bytes() + row.content_size(), 1));
    const std::span kept(reinterpret_cast<Cell*>(piece), cells.size());
    char* content = reinterpret_cast<char*>(piece) + cells.size_bytes();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Cell& cell = *std::construct_at(&kept[i], cells[i]);
        if (cell.has_content()) {
            if (cell.size != 0) {
                std::memcpy(content, cell.data, cell.size);
            }
            cell.data = content;
            content += cell.size;
        }
    }
    add_row({cells.size() == columns_ ? nullptr : keep_places(row.places()), kept.data()});
}

std::span<Cell> Rows::append_editable(std::span<const Cell> cells) {
    const std::span kept(allocate_cells(), columns_);
    std::ranges::uninitialized_copy(cells, kept);
    add_row({nullptr, kept.data()});
    return kept;
}

std::span<Cell> Rows::edit(std::size_t row) {
    const Row before = (*this)[row];
    const std::span kept(allocate_cells(), columns_);
    for (std::size_t i = 0; i < columns_; ++i) {
        std::construct_at(&kept[i], before[i]);
    }
    (row == 0 ? first_row_ : other_rows_[row - 1]) = {nullptr, kept.data()};
    return kept;
}

std::string_view Rows::keep(std::string_view content) {
    if (content.empty()) {
        return "";
    }
    auto* const place = reinterpret_cast<char*>(allocate(content.size()));
    std::memcpy(place, content.data(), content.size());
    return {place, content.size()};
}

void Rows::set_bytes(Cell& cell, std::span<const std::byte> bytes) {
    borrow_content(cell, keep({reinterpret_cast<const char*>(bytes.data()), bytes.size()}),
                   CellKind::Bytes);
}

void Rows::keep_content(Cell& cell) {
    if (cell.has_content()) {
        cell.data = keep(cell.text()).data();
    }
}

}  // namespace cvdeveloper::standalone
