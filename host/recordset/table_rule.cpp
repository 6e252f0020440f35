#include "host/recordset/table_rule.h"

#include <algorithm>

namespace cvdeveloper::standalone {

namespace {

std::size_t position_in(const Shape& shape, std::size_t table_column) noexcept {
    const auto found = std::ranges::find_if(shape.columns(), [table_column](const Column& column) {
        return column.writable && column.table_column == table_column;
    });
    return found == shape.columns().end()
               ? Shape::npos
               : static_cast<std::size_t>(found - shape.columns().begin());
}

}  // namespace

Cell RowChange::cell(std::size_t column) const noexcept {
    const std::size_t position = position_in(record_set_.shape(), column);
    return position == Shape::npos ? Cell{} : record_set_.cells(change_.row)[position];
}

bool RowChange::changes(std::size_t column) const noexcept {
    const std::size_t position = position_in(record_set_.shape(), column);
    if (position == Shape::npos) {
        return false;
    }
    const Cell& now = record_set_.cells(change_.row)[position];
    return now.changed &&
           !same_content(now, change_.original.empty() ? Cell{} : change_.original[position]);
}

std::string_view RowChange::key() const noexcept {
    return record_set_.cells(change_.row)[record_set_.shape().key()].text();
}

std::string_view RowChange::former_key() const noexcept {
    return change_.original.empty() ? std::string_view()
                                    : change_.original[record_set_.shape().key()].text();
}

}  // namespace cvdeveloper::standalone
