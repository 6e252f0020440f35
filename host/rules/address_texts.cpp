#include "host/rules/address_texts.h"

#include "platform/text.h"

namespace cvdeveloper::standalone {

AddressName read_name(std::string_view text) {
    const std::string_view name = trim_blanks(text);
    const std::size_t marker = name.find('#');
    if (marker == std::string_view::npos) {
        const std::size_t blank = name.rfind(' ');
        const std::string_view last =
            blank == std::string_view::npos ? name : name.substr(blank + 1);
        return {.whole = std::string(name), .family = std::string(last)};
    }
    std::string whole(trim_blanks(name.substr(0, marker)));
    const std::string_view family = trim_blanks(name.substr(marker + 1));
    if (!whole.empty() && !family.empty()) {
        whole += ' ';
    }
    whole += family;
    return {.whole = std::move(whole), .family = std::string(family)};
}

std::vector<std::string> numbers_in(std::string_view phone_list) {
    std::vector<std::string> numbers;
    std::string entries(phone_list);
    while (!entries.empty()) {
        std::string entry = take_first(entries, "\r\n");
        for (int place = 0; place < 2; ++place) {
            const std::string number = take_first(entry, "\t");
            if (const std::string_view text = trim_blanks(number); !text.empty()) {
                numbers.emplace_back(text);
            }
        }
    }
    return numbers;
}

}  // namespace cvdeveloper::standalone
