#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cvdeveloper::files {

// Whether the path can be handed to the system at all.
bool is_possible(std::string_view path) noexcept;
// The path as the system takes it, of any length. Error 52 where it cannot be one.
std::wstring native(std::string_view path);

// The runtime's file error for the system's, with the path.
[[noreturn]] void raise_file_error(std::uint32_t system_error, std::string_view path);
// For the error of the call before.
[[noreturn]] void raise_last_error(std::string_view path);

}  // namespace cvdeveloper::files
