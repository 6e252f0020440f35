#pragma once

#include <string>
#include <string_view>

namespace cvdeveloper::standalone {

// A new random record key: 36 characters in capitals, without braces.
std::string new_key();

// A text as a literal of a statement, in quotes.
std::string literal(std::string_view text);

}  // namespace cvdeveloper::standalone
