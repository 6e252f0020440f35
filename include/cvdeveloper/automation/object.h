#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "cvdeveloper/automation/ref.h"
#include "cvdeveloper/automation/variant.h"

namespace cvdeveloper {

enum class InvokeKind : std::uint8_t {
    Method,
    Get,
    Put,
    GetOrCall,  // what a late-bound caller asks for: a call, or the value where it is a property
};

// The arguments of one call. Values handed over by value are the callee's to use up.
struct Arguments {
    std::span<Variant> values;
    std::span<const std::string_view> names = {};  // of the last values
    std::uint32_t by_reference = 0;  // bit i: value i is the caller's variable; changed on success

    [[nodiscard]] bool is_by_reference(std::size_t index) const noexcept {
        return index < 32 && ((by_reference >> index) & 1U) != 0;
    }
};

// Anything that answers to member names: the library's classes, host objects, script objects.
class Object : public RefCounted {
  public:
    // Calls, reads or writes the member of that name, without regard to case.
    // An unknown member is error 438; what the member raises passes through.
    virtual Variant invoke(std::string_view member, InvokeKind kind, Arguments arguments) = 0;

    // What the object stands for where a plain value is asked for: the value of its default member.
    // Error 13 where it has none.
    virtual Variant default_value();

    // The name users know the object's class by, for messages.
    [[nodiscard]] virtual std::string_view class_name() const noexcept = 0;

    template <std::convertible_to<Variant>... Values>
    Variant call(std::string_view member, Values&&... values) {
        if constexpr (sizeof...(Values) == 0) {
            return invoke(member, InvokeKind::GetOrCall, {});
        } else {
            Variant list[] = {Variant(std::forward<Values>(values))...};
            return invoke(member, InvokeKind::GetOrCall, Arguments{.values = list});
        }
    }
    Variant get(std::string_view member) { return invoke(member, InvokeKind::GetOrCall, {}); }
    void put(std::string_view member, Variant value) {
        invoke(member, InvokeKind::Put, Arguments{.values = {&value, 1}});
    }
};

template <std::derived_from<RefCounted> T, class... Parts>
Ref<T> make_object(Parts&&... parts) {
    return Ref<T>(new T(std::forward<Parts>(parts)...));
}

}  // namespace cvdeveloper
