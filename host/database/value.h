#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

namespace cvdeveloper::standalone {

// A value on its way into a statement. Texts and bytes are borrowed until the statement has run.
using Value = std::variant<std::monostate, std::int64_t, double, std::string_view,
                           std::span<const std::byte>>;

}  // namespace cvdeveloper::standalone
