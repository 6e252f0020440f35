#pragma once

#include <string>
#include <string_view>
#include <vector>

// The text form of the host's lists: items between CR LF, three parts of an item between tabs.
// There is no escaping; the host reads and writes the same texts.
namespace cvdeveloper::item_text {

inline constexpr std::string_view item_separator = "\r\n";

struct Parts {
    std::string first;
    std::string second;
    std::string third;
};

std::string join(std::string_view first, std::string_view second, std::string_view third);
// Missing parts are empty; what follows a third tab is dropped.
Parts split(std::string_view item);

// The items of a list's text. A separator at the end adds no empty item.
std::vector<std::string> items(std::string_view list);

}  // namespace cvdeveloper::item_text
