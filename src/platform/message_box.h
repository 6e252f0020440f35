#pragma once

#include <string_view>

namespace cvdeveloper {

// The system's own way of telling its user something: standard error where there is no desktop.
void show_system_message(std::string_view text);

}  // namespace cvdeveloper
