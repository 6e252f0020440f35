#pragma once

#include <string_view>

namespace cvdeveloper {

// The runtime's Like: "?", "*", "#", "[...]", "[!...]"; case matters. Error 93 for a pattern that
// is none.
bool is_like(std::string_view text, std::string_view pattern);

}  // namespace cvdeveloper
