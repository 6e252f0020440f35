#include "tools/like_pattern.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/run_matching.h"
#include "platform/utf8.h"

namespace cvdeveloper {
namespace {

struct Range {
    char32_t first;
    char32_t last;
};

struct Element {
    enum class Kind : std::uint8_t { Run, AnyOne, OneOf, NoneOf } kind;
    std::vector<Range> ranges = {};
};

[[noreturn]] void raise_bad_pattern(std::string_view pattern) {
    raise(RuntimeError::InvalidPattern, pattern);
}

// What stands between "[" and "]". A "-" at either end stands for itself.
std::vector<Range> ranges_of(std::u32string_view content, std::string_view pattern) {
    std::vector<Range> ranges;
    for (std::size_t at = 0; at < content.size();) {
        if (at + 2 < content.size() && content[at + 1] == U'-') {
            const Range range{content[at], content[at + 2]};
            if (range.first > range.last) {
                raise_bad_pattern(pattern);
            }
            ranges.push_back(range);
            at += 3;
        } else {
            ranges.push_back({content[at], content[at]});
            ++at;
        }
    }
    return ranges;
}

std::vector<Element> parse(std::string_view pattern) {
    const std::u32string codes = utf8::characters(pattern);
    std::vector<Element> elements;
    for (std::size_t at = 0; at < codes.size(); ++at) {
        switch (codes[at]) {
            case U'*':
                elements.push_back({Element::Kind::Run});
                break;
            case U'?':
                elements.push_back({Element::Kind::AnyOne});
                break;
            case U'#':
                elements.push_back({Element::Kind::OneOf, {{U'0', U'9'}}});
                break;
            case U'[': {
                const std::size_t end = codes.find(U']', at + 1);
                if (end == std::u32string::npos) {
                    raise_bad_pattern(pattern);
                }
                std::u32string_view content =
                    std::u32string_view(codes).substr(at + 1, end - at - 1);
                // A lone "!" is one of the class, not its opposite.
                const bool negated = content.size() > 1 && content.front() == U'!';
                content.remove_prefix(negated ? 1 : 0);
                // An empty class stands for no character at all.
                if (!content.empty()) {
                    elements.push_back({negated ? Element::Kind::NoneOf : Element::Kind::OneOf,
                                        ranges_of(content, pattern)});
                }
                at = end;
                break;
            }
            default:
                elements.push_back({Element::Kind::OneOf, {{codes[at], codes[at]}}});
        }
    }
    return elements;
}

bool fits(const Element& element, char32_t code) {
    const bool listed = std::ranges::any_of(element.ranges, [code](const Range& range) {
        return code >= range.first && code <= range.last;
    });
    return element.kind == Element::Kind::AnyOne ||
           listed == (element.kind == Element::Kind::OneOf);
}

}  // namespace

bool is_like(std::string_view text, std::string_view pattern) {
    const std::vector<Element> elements = parse(pattern);
    return matches_with_runs<Element>(
        utf8::characters(text), elements,
        [](const Element& element) { return element.kind == Element::Kind::Run; }, fits);
}

}  // namespace cvdeveloper
