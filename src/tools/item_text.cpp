#include "tools/item_text.h"

namespace cvdeveloper::item_text {
namespace {

constexpr std::string_view part_separator = "\t";

// What stands before the separator; the rest stays. All of it where there is none.
std::string_view take(std::string_view& rest, std::string_view separator) {
    const std::size_t found = rest.find(separator);
    const std::string_view first = rest.substr(0, found);
    rest = found == std::string_view::npos ? std::string_view()
                                           : rest.substr(found + separator.size());
    return first;
}

}  // namespace

std::string join(std::string_view first, std::string_view second, std::string_view third) {
    std::string item;
    item.reserve(first.size() + second.size() + third.size() + 2 * part_separator.size());
    return item.append(first)
        .append(part_separator)
        .append(second)
        .append(part_separator)
        .append(third);
}

Parts split(std::string_view item) {
    Parts parts;
    parts.first = take(item, part_separator);
    parts.second = take(item, part_separator);
    parts.third = take(item, part_separator);
    return parts;
}

std::vector<std::string> items(std::string_view list) {
    std::vector<std::string> lines;
    while (!list.empty()) {
        lines.emplace_back(take(list, item_separator));
    }
    return lines;
}

}  // namespace cvdeveloper::item_text
