#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

#include "cvdeveloper/automation/object.h"

// Values between the library and the system.
namespace cvdeveloper::com {

// A VARIANT that is cleared when it goes.
class OwnedVariant {
  public:
    OwnedVariant() noexcept { VariantInit(&value_); }
    explicit OwnedVariant(const Variant& value);
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
    OwnedVariant(OwnedVariant&& other) noexcept : value_(other.value_) {
        VariantInit(&other.value_);
    }
    OwnedVariant& operator=(OwnedVariant&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~OwnedVariant() { VariantClear(&value_); }

    [[nodiscard]] VARIANT* address() noexcept { return &value_; }
    [[nodiscard]] const VARIANT& get() const noexcept { return value_; }
    // Hands the value over.
    VARIANT release() noexcept {
        const VARIANT given = value_;
        VariantInit(&value_);
        return given;
    }

  private:
    VARIANT value_;
};

// Errors: 13 for kinds of values that the library does not know.
Variant from_native(const VARIANT& value);

// The caller's to clear. Missing is the system's "argument left out".
VARIANT to_native(const Variant& value);

// Whether the value is a variable of the caller's that can be changed.
bool is_by_reference(const VARIANT& value) noexcept;

// Puts a value into the caller's variable, converted to the variable's type.
void store_by_reference(const VARIANT& target, const Variant& value);

BSTR to_bstr(std::string_view text);
std::string from_bstr(const wchar_t* text);

}  // namespace cvdeveloper::com
