#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace cvdeveloper {

// Matches all of a text against a pattern whose elements stand for one character each, except those
// that stand for a run of any length. A mismatch lengthens the last run, so the time is bounded by
// the product of the lengths.
template <class Element, class IsRun, class Fits>
bool matches_with_runs(std::u32string_view text, std::span<const Element> pattern, IsRun is_run,
                       Fits fits) {
    std::size_t at = 0;
    std::size_t wanted = 0;
    std::optional<std::size_t> last_run;
    std::size_t run_end = 0;
    while (at < text.size()) {
        if (wanted < pattern.size() && is_run(pattern[wanted])) {
            last_run = wanted++;
            run_end = at;
        } else if (wanted < pattern.size() && fits(pattern[wanted], text[at])) {
            ++wanted;
            ++at;
        } else if (last_run) {
            wanted = *last_run + 1;
            at = ++run_end;
        } else {
            return false;
        }
    }
    while (wanted < pattern.size() && is_run(pattern[wanted])) {
        ++wanted;
    }
    return wanted == pattern.size();
}

}  // namespace cvdeveloper
