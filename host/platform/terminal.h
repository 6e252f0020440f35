#pragma once

#include <cstddef>
#include <string_view>

// The terminal behind one of the process's descriptors.
namespace cvdeveloper::standalone::terminal {

// Whether it is one, and one that moves its cursor when it is told to.
bool is_there(int descriptor) noexcept;
// In characters; 80 where that is not known.
std::size_t width(int descriptor) noexcept;
// A terminal that takes no more loses the text, nothing else.
void write(int descriptor, std::string_view text) noexcept;

}  // namespace cvdeveloper::standalone::terminal
