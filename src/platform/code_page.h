#pragma once

#include <string>
#include <string_view>

namespace cvdeveloper {

// Text files are in the system's code page, which is UTF-8 everywhere but on Windows. Errors: 5
// for a character that it does not have.
std::string to_code_page(std::string_view text);
std::string from_code_page(std::string_view bytes);

}  // namespace cvdeveloper
