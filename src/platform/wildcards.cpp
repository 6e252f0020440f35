#include "platform/wildcards.h"

#include <string>

#include "platform/run_matching.h"
#include "platform/text.h"
#include "platform/utf8.h"

namespace cvdeveloper {

bool has_wildcards(std::string_view name) noexcept {
    return name.find_first_of("*?") != std::string_view::npos;
}

bool matches_wildcards(std::string_view name, std::string_view pattern) {
    if (pattern == "*.*") {
        return true;
    }
    const std::u32string text = utf8::characters(upper_case(name));
    const std::u32string wanted = utf8::characters(upper_case(pattern));
    return matches_with_runs<char32_t>(
        text, wanted, [](char32_t element) { return element == U'*'; },
        [](char32_t element, char32_t c) { return element == U'?' || element == c; });
}

}  // namespace cvdeveloper
