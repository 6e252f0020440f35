#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace cvdeveloper {

// The automation runtime's own errors, by their known numbers.
enum class RuntimeError : std::int32_t {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    BadFileMode = 54,
    FileExists = 58,
    DiskFull = 61,
    PastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidPattern = 93,
    InvalidUseOfNull = 94,
    ObjectRequired = 424,
    CannotCreateObject = 429,
    ClassNotFound = 432,
    NoSuchMember = 438,
    NamedArgumentNotFound = 448,
    ArgumentNotOptional = 449,
    WrongArgumentCount = 450,
    KeyInUse = 457,
    ElementNotFound = 32811,
};

// The runtime's German text of the error.
std::string_view text_of(RuntimeError error) noexcept;

// Raises the error with its text; a detail ("AKT_Create, Argument dateDatum") follows in brackets.
[[noreturn]] void raise(RuntimeError error, std::string_view detail = {});

// Error 438 for "Application.AKT_Creat", with the nearest of the names that there are.
[[noreturn]] void raise_no_such_member(std::string_view class_name, std::string_view member,
                                       std::span<const std::string_view> names);

}  // namespace cvdeveloper
