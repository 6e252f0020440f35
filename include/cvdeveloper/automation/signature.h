#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <type_traits>

#include "cvdeveloper/automation/interface_table.h"

// What a C++ function's signature tells a binding.
namespace cvdeveloper::binding {

// Whether the function can change an argument of this type.
template <class T>
constexpr bool changes =
    std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

template <class... A>
constexpr std::uint32_t changed_arguments = [] {
    std::uint32_t bits = 0;
    std::uint32_t bit = 1;
    ((bits |= changes<A> ? bit : 0U, bit <<= 1U), ...);
    return bits;
}();

constexpr std::uint32_t passed_by_reference(std::span<const Parameter> parameters) {
    std::uint32_t bits = 0;
    std::uint32_t bit = 1;
    for (const Parameter& parameter : parameters) {
        bits |= parameter.direction == Direction::InOut ? bit : 0U;
        bit <<= 1U;
    }
    return bits;
}

// The object or topic that a bound member runs on. A topic is made on the spot from the session
// that the object holds; session_of is found where the topic's session is declared.
template <class T, class Self>
decltype(auto) target(Self& self) {
    if constexpr (std::derived_from<T, Object>) {
        return static_cast<T&>(self);
    } else {
        return T(session_of(self));
    }
}

}  // namespace cvdeveloper::binding
