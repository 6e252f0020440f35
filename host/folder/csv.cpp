#include "host/folder/csv.h"

#include <algorithm>

namespace cvdeveloper::standalone {

bool CsvReader::next(std::vector<Cell>& row) {
    row.clear();
    if (rest_.empty()) {
        return false;
    }
    for (;;) {
        row.push_back(read_cell());
        if (rest_.empty() || rest_.front() != ',') {
            break;
        }
        rest_.remove_prefix(1);
    }
    if (rest_.starts_with('\r')) {
        rest_.remove_prefix(1);
    }
    if (rest_.starts_with('\n')) {
        rest_.remove_prefix(1);
    }
    return true;
}

CsvReader::Cell CsvReader::read_cell() {
    if (!rest_.starts_with('"')) {
        const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
        const std::string_view text = rest_.substr(0, end);
        rest_.remove_prefix(end);
        return text.empty() ? Cell() : Cell(text);
    }
    rest_.remove_prefix(1);
    std::string text;
    for (;;) {
        const std::size_t quote = std::min(rest_.find('"'), rest_.size());
        text += rest_.substr(0, quote);
        rest_.remove_prefix(std::min(quote + 1, rest_.size()));
        if (!rest_.starts_with('"')) {
            return text;
        }
        text += '"';
        rest_.remove_prefix(1);
    }
}

}  // namespace cvdeveloper::standalone
