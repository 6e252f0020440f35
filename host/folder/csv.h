#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cvdeveloper::standalone {

// Rows of comma-separated values: an empty cell is null, "" in quotes the empty text. Line breaks
// inside quotes are data.
class CsvReader {
  public:
    using Cell = std::optional<std::string>;

    explicit CsvReader(std::string_view text) noexcept : rest_(text) {}

    // False at the end of the text.
    bool next(std::vector<Cell>& row);

  private:
    Cell read_cell();

    std::string_view rest_;
};

}  // namespace cvdeveloper::standalone
