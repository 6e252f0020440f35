#pragma once

#include <string>
#include <string_view>

namespace cvdeveloper::files {

// Whether the path can be handed to the system at all.
bool is_possible(std::string_view path) noexcept;
// The path as the system takes it. Error 52 where it cannot be one.
std::string native(std::string_view path);

// The runtime's file error for the system's, with the path.
[[noreturn]] void raise_file_error(int system_error, std::string_view path);

}  // namespace cvdeveloper::files
