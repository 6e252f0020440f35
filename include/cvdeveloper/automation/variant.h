#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "cvdeveloper/automation/date.h"
#include "cvdeveloper/automation/ref.h"

namespace cvdeveloper {

class Object;
using ObjectRef = Ref<Object>;
using Bytes = std::vector<std::byte>;

struct Empty {
    friend constexpr bool operator==(Empty, Empty) = default;
};
struct Null {
    friend constexpr bool operator==(Null, Null) = default;
};
// An optional argument that was left out.
struct Missing {
    friend constexpr bool operator==(Missing, Missing) = default;
};

// Names the alternatives of a Variant, in their order.
enum class VariantType : std::uint8_t {
    Empty,
    Null,
    Missing,
    Boolean,
    Int16,
    Int32,
    Double,
    Date,
    String,
    ByteArray,
    Object,
};

// One automation value. Text is UTF-8. Conversions between the kinds are in conversions.h.
class Variant {
  public:
    using Value = std::variant<Empty, Null, Missing, bool, std::int16_t, std::int32_t, double, Date,
                               std::string, Bytes, ObjectRef>;

    Variant() noexcept = default;
    Variant(Empty) noexcept {}
    Variant(Null value) noexcept : value_(value) {}
    Variant(Missing value) noexcept : value_(value) {}
    Variant(std::same_as<bool> auto value) noexcept : value_(value) {}
    Variant(std::int16_t value) noexcept : value_(value) {}
    Variant(std::int32_t value) noexcept : value_(value) {}
    Variant(double value) noexcept : value_(value) {}
    Variant(Date value) noexcept : value_(value) {}
    Variant(std::string value) noexcept : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::in_place_type<std::string>, value) {}
    Variant(const char* value) : value_(std::in_place_type<std::string>, value) {}
    Variant(Bytes value) noexcept : value_(std::move(value)) {}
    Variant(ObjectRef value) noexcept : value_(std::move(value)) {}
    template <std::derived_from<Object> T>
    Variant(Ref<T> value) noexcept : value_(ObjectRef(std::move(value))) {}

    [[nodiscard]] VariantType type() const noexcept {
        return static_cast<VariantType>(value_.index());
    }
    template <class T>
    [[nodiscard]] bool is() const noexcept {
        return std::holds_alternative<T>(value_);
    }
    template <class T>
    [[nodiscard]] const T* get_if() const noexcept {
        return std::get_if<T>(&value_);
    }
    template <class T>
    [[nodiscard]] T* get_if() noexcept {
        return std::get_if<T>(&value_);
    }
    template <class T>
    [[nodiscard]] const T& get() const {
        return std::get<T>(value_);
    }
    template <class T>
    [[nodiscard]] T& get() {
        return std::get<T>(value_);
    }

    [[nodiscard]] const Value& value() const noexcept { return value_; }

    // Same kind and same value; objects by identity.
    friend bool operator==(const Variant& left, const Variant& right) = default;

  private:
    Value value_;
};

}  // namespace cvdeveloper
