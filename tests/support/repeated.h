#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cvdeveloper {

// A text of so many times the same.
inline std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i) {
        result.append(text);
    }
    return result;
}

}  // namespace cvdeveloper
