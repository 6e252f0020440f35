#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/automation/signature.h"

// Windows only: a vtable's entry for a C++ function, made from its signature as bind<F> is.
// Arguments and result travel in the system's own representations; what goes wrong is the entry's
// status.
//
// The system's headers rename members of ours (CopyFile, DeleteFile) by macros, so its types are
// described here by their layout; bindings/com holds the two descriptions together and defines what
// is only declared here.
namespace cvdeveloper::native {

using Status = std::int32_t;
using Text = wchar_t*;  // BSTR
using Boolean = std::int16_t;
struct Interface;  // IDispatch

struct Value {  // VARIANT
    std::uint16_t type;
    std::uint16_t reserved[3];
    union {
        std::int64_t whole;
        void* pointers[2];
    };
};

inline constexpr Status done = 0;
inline constexpr Status null_pointer = static_cast<Status>(0x80004003);  // E_POINTER

// How every object begins that is handed to the system.
struct Head {
    const NativeEntry* vtable;
    Object* object;
    Guard* guard;  // the object's own
};

// Which entry of which object runs: finds the row, where a default or an error's text asks for it.
struct Call {
    const Head* self;
    NativeEntry entry;
};

// Sets the error information of the exception that is being handled.
Status status_of_exception(const Head* self) noexcept;

std::string text_in(const wchar_t* text);
Variant value_in(const Value& value, const Call& call, std::size_t index);
ObjectRef object_in(Interface* object);
[[noreturn]] void raise_wrong_class(const Call& call, std::size_t index, std::string_view expected);

// What these return is the caller's.
Text text_out(std::string_view text);
Interface* object_out(const ObjectRef& object);
void value_out(const Variant& value, Value& target);

// Put a new value in place of one that the caller owns.
void replace(Text& target, std::string_view text);
void replace(Interface*& target, const ObjectRef& object);
void replace(Value& target, const Variant& value);

template <class T>
struct NativeArgument;

template <class T, class AbiType = T>
struct PlainArgument {
    using Abi = AbiType;
    PlainArgument(Abi abi, const Call&, std::size_t) : value(static_cast<T>(abi)) {}
    T get() const { return value; }
    T value;
};

template <>
struct NativeArgument<std::int16_t> : PlainArgument<std::int16_t> {
    using PlainArgument::PlainArgument;
};
template <>
struct NativeArgument<std::int32_t> : PlainArgument<std::int32_t> {
    using PlainArgument::PlainArgument;
};
template <>
struct NativeArgument<double> : PlainArgument<double> {
    using PlainArgument::PlainArgument;
};
template <class E>
requires std::is_enum_v<E>
struct NativeArgument<E> : PlainArgument<E, std::int32_t> {
    using PlainArgument<E, std::int32_t>::PlainArgument;
};
template <>
struct NativeArgument<Date> {
    using Abi = double;
    NativeArgument(Abi abi, const Call&, std::size_t) : value{abi} {}
    Date get() const { return value; }
    Date value;
};
template <>
struct NativeArgument<bool> {
    using Abi = Boolean;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(abi != 0) {}
    bool get() const { return value; }
    bool value;
};
template <>
struct NativeArgument<bool&> {
    using Abi = Boolean;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(abi != 0) {}
    bool& get() { return value; }
    void store(Abi& target) const { target = value ? Boolean{-1} : Boolean{0}; }
    bool value;
};
template <>
struct NativeArgument<std::string_view> {
    using Abi = Text;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(text_in(abi)) {}
    std::string_view get() const { return value; }
    std::string value;
};
template <>
struct NativeArgument<std::string&> {
    using Abi = Text;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(text_in(abi)) {}
    std::string& get() { return value; }
    void store(Abi& target) const { replace(target, value); }
    std::string value;
};
template <>
struct NativeArgument<const Variant&> {
    using Abi = Value;
    NativeArgument(const Abi& abi, const Call& call, std::size_t index)
        : value(value_in(abi, call, index)) {}
    const Variant& get() const { return value; }
    Variant value;
};
template <>
struct NativeArgument<Variant&> {
    using Abi = Value;
    NativeArgument(const Abi& abi, const Call& call, std::size_t index)
        : value(value_in(abi, call, index)) {}
    Variant& get() { return value; }
    void store(Abi& target) const { replace(target, value); }
    Variant value;
};
template <>
struct NativeArgument<ObjectRef> {
    using Abi = Interface*;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(object_in(abi)) {}
    ObjectRef get() { return std::move(value); }
    ObjectRef value;
};
template <std::derived_from<LibraryObject> T>
struct NativeArgument<Ref<T>> {
    using Abi = Interface*;
    NativeArgument(Abi abi, const Call& call, std::size_t index) {
        const ObjectRef object = object_in(abi);
        value = Ref<T>(dynamic_cast<T*>(object.get()));
        if (object && !value) {
            raise_wrong_class(call, index, T::automation_name);
        }
    }
    Ref<T> get() { return std::move(value); }
    Ref<T> value;
};

// An argument by reference: converted like one by value, and stored back where the function can
// have changed it.
template <class T>
struct ReferenceArgument : NativeArgument<T> {
    using Abi = typename NativeArgument<T>::Abi*;
    ReferenceArgument(Abi abi, const Call& call, std::size_t index)
        : NativeArgument<T>(*abi, call, index), target(abi) {}
    void store() const {
        if constexpr (binding::changes<T>) {
            NativeArgument<T>::store(*target);
        }
    }
    Abi target;
};
template <class T>
struct ValueArgument : NativeArgument<T> {
    using NativeArgument<T>::NativeArgument;
    void store() const noexcept {}
};

template <class T, bool by_reference>
using ArgumentFor = std::conditional_t<by_reference, ReferenceArgument<T>, ValueArgument<T>>;

template <class R>
struct NativeResult;
template <class R, class AbiType = R>
struct PlainResult {
    using Abi = AbiType;
    static void store(R value, Abi& target) { target = static_cast<Abi>(value); }
};
template <>
struct NativeResult<std::int16_t> : PlainResult<std::int16_t> {};
template <>
struct NativeResult<std::int32_t> : PlainResult<std::int32_t> {};
template <>
struct NativeResult<double> : PlainResult<double> {};
template <class E>
requires std::is_enum_v<E>
struct NativeResult<E> : PlainResult<E, std::int32_t> {
};
template <>
struct NativeResult<bool> {
    using Abi = Boolean;
    static void store(bool value, Abi& target) { target = value ? Boolean{-1} : Boolean{0}; }
};
template <>
struct NativeResult<Date> {
    using Abi = double;
    static void store(Date value, Abi& target) { target = value.days; }
};
template <>
struct NativeResult<std::string> {
    using Abi = Text;
    static void store(const std::string& value, Abi& target) { target = text_out(value); }
};
template <>
struct NativeResult<Variant> {
    using Abi = Value;
    static void store(const Variant& value, Abi& target) { value_out(value, target); }
};
template <>
struct NativeResult<ObjectRef> {
    using Abi = Interface*;
    static void store(const ObjectRef& value, Abi& target) { target = object_out(value); }
};
template <std::derived_from<LibraryObject> T>
struct NativeResult<Ref<T>> {
    using Abi = Interface*;
    static void store(const Ref<T>& value, Abi& target) { target = object_out(value); }
};

// Where a by-reference argument has no address.
template <bool by_reference, class Abi>
constexpr bool is_missing(Abi given) noexcept {
    if constexpr (by_reference) {
        return given == nullptr;
    } else {
        return false;
    }
}

// What an entry does: run calls the function through an Invoke, perform is the part that entries of
// several functions of one signature share.
template <class Invoke, std::uint32_t by_reference, class Places, class R, class... A>
struct Entry;

template <class Invoke, std::uint32_t by_reference, std::size_t... I, class R, class... A>
struct Entry<Invoke, by_reference, std::index_sequence<I...>, R, A...> {
    static constexpr bool is_by_reference(std::size_t place) {
        return ((by_reference >> place) & 1U) != 0;
    }
    template <std::size_t Place, class T>
    using ArgumentAt = ArgumentFor<T, is_by_reference(Place)>;
    using Result = NativeResult<R>;

    static Status perform(const Invoke& invoke, const Call& call,
                          typename ArgumentAt<I, A>::Abi... given, typename Result::Abi* result) {
        if (result == nullptr || (false || ... || is_missing<is_by_reference(I)>(given))) {
            return null_pointer;
        }
        try {
            std::tuple<ArgumentAt<I, A>...> arguments{ArgumentAt<I, A>(given, call, I)...};
            const GuardLock lock(call.self->guard);
            typename Result::Abi made{};
            Result::store(invoke(*call.self->object, std::get<I>(arguments).get()...), made);
            (std::get<I>(arguments).store(), ...);
            *result = made;
            return done;
        } catch (...) {
            return status_of_exception(call.self);
        }
    }
    template <auto make_invoke>
    static Status __stdcall run(const Head* self, typename ArgumentAt<I, A>::Abi... given,
                                typename Result::Abi* result) {
        return perform(make_invoke(), Call{self, entry<make_invoke>()}, given..., result);
    }
    template <auto make_invoke>
    static NativeEntry entry() noexcept {
        return reinterpret_cast<NativeEntry>(&run<make_invoke>);
    }
};

template <class Invoke, std::uint32_t by_reference, std::size_t... I, class... A>
struct Entry<Invoke, by_reference, std::index_sequence<I...>, void, A...> {
    static constexpr bool is_by_reference(std::size_t place) {
        return ((by_reference >> place) & 1U) != 0;
    }
    template <std::size_t Place, class T>
    using ArgumentAt = ArgumentFor<T, is_by_reference(Place)>;

    static Status perform(const Invoke& invoke, const Call& call,
                          typename ArgumentAt<I, A>::Abi... given) {
        if ((false || ... || is_missing<is_by_reference(I)>(given))) {
            return null_pointer;
        }
        try {
            std::tuple<ArgumentAt<I, A>...> arguments{ArgumentAt<I, A>(given, call, I)...};
            const GuardLock lock(call.self->guard);
            invoke(*call.self->object, std::get<I>(arguments).get()...);
            (std::get<I>(arguments).store(), ...);
            return done;
        } catch (...) {
            return status_of_exception(call.self);
        }
    }
    template <auto make_invoke>
    static Status __stdcall run(const Head* self, typename ArgumentAt<I, A>::Abi... given) {
        return perform(make_invoke(), Call{self, entry<make_invoke>()}, given...);
    }
    template <auto make_invoke>
    static NativeEntry entry() noexcept {
        return reinterpret_cast<NativeEntry>(&run<make_invoke>);
    }
};

template <auto Function, class T, class R, class... A>
struct InvokeMember {
    R operator()(Object& self, A... arguments) const {
        decltype(auto) object = binding::target<T>(self);
        return (object.*Function)(std::forward<A>(arguments)...);
    }
    static InvokeMember make() noexcept { return {}; }
};

// The entry of a bound member function, as a row's binding gives it.
template <auto Function, std::uint32_t by_reference, class T, class R, class... A>
NativeEntry native_entry(const Operation&) noexcept {
    using Invoke = InvokeMember<Function, T, R, A...>;
    return Entry<Invoke, by_reference, std::index_sequence_for<A...>, R,
                 A...>::template entry<&Invoke::make>();
}

}  // namespace cvdeveloper::native
