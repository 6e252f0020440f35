#include "platform/wildcards.h"

#include <string>

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
    std::size_t at = 0;
    std::size_t at_wanted = 0;
    // Where the last "*" stood and how far its run reaches; on a mismatch the run grows by one.
    std::size_t star = std::u32string::npos;
    std::size_t run_end = 0;
    while (at < text.size()) {
        if (at_wanted < wanted.size() && wanted[at_wanted] == U'*') {
            star = at_wanted++;
            run_end = at;
        } else if (at_wanted < wanted.size() &&
                   (wanted[at_wanted] == U'?' || wanted[at_wanted] == text[at])) {
            ++at;
            ++at_wanted;
        } else if (star != std::u32string::npos) {
            at_wanted = star + 1;
            at = ++run_end;
        } else {
            return false;
        }
    }
    return wanted.find_first_not_of(U'*', at_wanted) == std::u32string::npos;
}

}  // namespace cvdeveloper
