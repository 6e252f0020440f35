#pragma once

#include <array>
#include <concepts>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "cvdeveloper/automation/interface_table.h"
#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/automation/signature.h"
#ifdef _WIN32
#include "cvdeveloper/automation/native_entry.h"
#endif

// bind<&Activities::AKT_Create>: the row's side of a C++ function. The types of arguments and
// result follow from its signature; conversions stand here once, not per operation.
namespace cvdeveloper {

// Specialised by each public enumeration with its interface name.
template <class E>
struct EnumerationName;

namespace binding {

struct Place {
    const Operation& operation;
    std::size_t index;
};

// "AKT_Create, Argument dateDatum"
std::string describe(const Place& place);

// Convert the slot in place and refer to the converted value inside it. The errors name operation
// and argument.
std::string& text_in(Variant& slot, const Place& place);
bool& boolean_in(Variant& slot, const Place& place);
std::int16_t& int16_in(Variant& slot, const Place& place);
std::int32_t& int32_in(Variant& slot, const Place& place);
double& double_in(Variant& slot, const Place& place);
Date& date_in(Variant& slot, const Place& place);
ObjectRef object_in(const Variant& slot, const Place& place);
[[noreturn]] void raise_wrong_class(const Place& place, std::string_view expected);

// Argument<T>: what stands between a slot and a parameter of type T. get() is the parameter's
// value; store() puts what the function left there back into the slot.
template <class T>
struct Argument;

template <class T>
struct InSlot {
    void store(Variant&) const noexcept {}
    T value;
    T get() { return value; }
};

template <>
struct Argument<std::string_view> : InSlot<std::string_view> {
    static constexpr TypeName type{ValueType::String};
    Argument(Variant& slot, const Place& place) : InSlot{text_in(slot, place)} {}
};
template <>
struct Argument<std::string&> : InSlot<std::string&> {
    static constexpr TypeName type{ValueType::String};
    Argument(Variant& slot, const Place& place) : InSlot{text_in(slot, place)} {}
};
template <>
struct Argument<bool> : InSlot<bool> {
    static constexpr TypeName type{ValueType::Boolean};
    Argument(Variant& slot, const Place& place) : InSlot{boolean_in(slot, place)} {}
};
template <>
struct Argument<bool&> : InSlot<bool&> {
    static constexpr TypeName type{ValueType::Boolean};
    Argument(Variant& slot, const Place& place) : InSlot{boolean_in(slot, place)} {}
};
template <>
struct Argument<std::int16_t> : InSlot<std::int16_t> {
    static constexpr TypeName type{ValueType::Int16};
    Argument(Variant& slot, const Place& place) : InSlot{int16_in(slot, place)} {}
};
template <>
struct Argument<std::int32_t> : InSlot<std::int32_t> {
    static constexpr TypeName type{ValueType::Int32};
    Argument(Variant& slot, const Place& place) : InSlot{int32_in(slot, place)} {}
};
template <>
struct Argument<double> : InSlot<double> {
    static constexpr TypeName type{ValueType::Double};
    Argument(Variant& slot, const Place& place) : InSlot{double_in(slot, place)} {}
};
template <>
struct Argument<Date> : InSlot<Date> {
    static constexpr TypeName type{ValueType::Date};
    Argument(Variant& slot, const Place& place) : InSlot{date_in(slot, place)} {}
};
template <>
struct Argument<const Variant&> : InSlot<const Variant&> {
    static constexpr TypeName type{ValueType::Variant};
    Argument(Variant& slot, const Place&) : InSlot{slot} {}
};
template <>
struct Argument<Variant&> : InSlot<Variant&> {
    static constexpr TypeName type{ValueType::Variant};
    Argument(Variant& slot, const Place&) : InSlot{slot} {}
};
template <>
struct Argument<ObjectRef> {
    static constexpr TypeName type{ValueType::Object};
    Argument(Variant& slot, const Place& place) : value(object_in(slot, place)) {}
    ObjectRef get() { return std::move(value); }
    void store(Variant&) const noexcept {}
    ObjectRef value;
};
template <class E>
requires std::is_enum_v<E>
struct Argument<E> {
    static constexpr TypeName type{ValueType::Enumeration, EnumerationName<E>::value};
    Argument(Variant& slot, const Place& place) : value(static_cast<E>(int32_in(slot, place))) {}
    E get() const { return value; }
    void store(Variant&) const noexcept {}
    E value;
};
// An object of one of the library's own classes, or nothing.
template <std::derived_from<LibraryObject> T>
struct Argument<Ref<T>> {
    static constexpr TypeName type{ValueType::Object, T::automation_name};
    Argument(Variant& slot, const Place& place) {
        const ObjectRef object = object_in(slot, place);
        value = Ref<T>(dynamic_cast<T*>(object.get()));
        if (object && !value) {
            raise_wrong_class(place, T::automation_name);
        }
    }
    Ref<T> get() { return std::move(value); }
    void store(Variant&) const noexcept {}
    Ref<T> value;
};

template <class T>
struct Result;
template <>
struct Result<void> {
    static constexpr TypeName type{ValueType::Nothing};
};
template <>
struct Result<std::string> {
    static constexpr TypeName type{ValueType::String};
};
template <>
struct Result<bool> {
    static constexpr TypeName type{ValueType::Boolean};
};
template <>
struct Result<std::int16_t> {
    static constexpr TypeName type{ValueType::Int16};
};
template <>
struct Result<std::int32_t> {
    static constexpr TypeName type{ValueType::Int32};
};
template <>
struct Result<double> {
    static constexpr TypeName type{ValueType::Double};
};
template <>
struct Result<Date> {
    static constexpr TypeName type{ValueType::Date};
};
template <>
struct Result<Variant> {
    static constexpr TypeName type{ValueType::Variant};
};
template <>
struct Result<ObjectRef> {
    static constexpr TypeName type{ValueType::Object};
};
template <std::derived_from<LibraryObject> T>
struct Result<Ref<T>> {
    static constexpr TypeName type{ValueType::Object, T::automation_name};
};
template <class E>
requires std::is_enum_v<E>
struct Result<E> {
    static constexpr TypeName type{ValueType::Enumeration, EnumerationName<E>::value};
};

template <class R>
Variant to_variant(R&& value) {
    if constexpr (std::is_enum_v<std::remove_cvref_t<R>>) {
        return static_cast<std::int32_t>(value);
    } else {
        return Variant(std::forward<R>(value));
    }
}

template <class R, class... A>
struct Signature {
    static constexpr std::array<TypeName, sizeof...(A)> types{Argument<A>::type...};
    static constexpr std::uint32_t writes = changed_arguments<A...>;

    template <class Invoke, std::size_t... I>
    static void run(const Operation& operation, Variant* slots, Variant& result,
                    const Invoke& invoke, std::index_sequence<I...>) {
        std::tuple<Argument<A>...> arguments{Argument<A>(slots[I], Place{operation, I})...};
        if constexpr (std::is_void_v<R>) {
            invoke(std::get<I>(arguments).get()...);
        } else {
            result = to_variant(invoke(std::get<I>(arguments).get()...));
        }
        (std::get<I>(arguments).store(slots[I]), ...);
    }
};

template <auto Function, std::uint32_t by_reference, class T, class R, class... A>
constexpr Binding::Native native_side() {
#ifdef _WIN32
    return native::native_entry<Function, by_reference, T, R, A...>;
#else
    return nullptr;
#endif
}

template <auto Function, std::uint32_t by_reference, class T, class R, class... A>
struct Member {
    static void call(const Operation& operation, Object& self, Variant* slots, Variant& result) {
        Signature<R, A...>::run(
            operation, slots, result,
            [&self](auto&&... values) -> R {
                decltype(auto) object = target<T>(self);
                return (object.*Function)(std::forward<decltype(values)>(values)...);
            },
            std::index_sequence_for<A...>{});
    }
    static constexpr Binding row{.call = &call,
                                 .parameter_types = Signature<R, A...>::types,
                                 .result = Result<R>::type,
                                 .writes = Signature<R, A...>::writes,
                                 .by_reference = by_reference,
                                 .native = native_side<Function, by_reference, T, R, A...>()};
};

template <auto Function, class F, const auto&... parameters>
struct Make;
template <auto Function, class T, class R, class... A, const auto&... parameters>
struct Make<Function, R (T::*)(A...), parameters...>
    : Member<Function, (changed_arguments<A...> | ... | passed_by_reference(parameters)), T, R,
             A...> {};
template <auto Function, class T, class R, class... A, const auto&... parameters>
struct Make<Function, R (T::*)(A...) const, parameters...>
    : Member<Function, (changed_arguments<A...> | ... | passed_by_reference(parameters)), T, R,
             A...> {};

}  // namespace binding

// A row names its parameters here too where one is passed by reference that the function does not
// change, as its type does not tell.
template <auto Function, const auto&... parameters>
constexpr Binding bind = binding::Make<Function, decltype(Function), parameters...>::row;

}  // namespace cvdeveloper
