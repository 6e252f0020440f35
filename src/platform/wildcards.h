#pragma once

#include <string_view>

namespace cvdeveloper {

bool has_wildcards(std::string_view name) noexcept;

// "*" any run, "?" one character, "*.*" every name; without regard to case, as scripts written on
// Windows expect.
bool matches_wildcards(std::string_view name, std::string_view pattern);

}  // namespace cvdeveloper
