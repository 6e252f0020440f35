#pragma once

namespace cvdeveloper {

// The system's one-to-one case mapping of a single character, whatever the process's locale is.
char32_t upper_case(char32_t character) noexcept;
char32_t lower_case(char32_t character) noexcept;

}  // namespace cvdeveloper
