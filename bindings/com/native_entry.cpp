#include "cvdeveloper/automation/native_entry.h"

#include <windows.h>

#include <oleauto.h>

#include <cstddef>
#include <cstring>

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "errors.h"
#include "instance.h"
#include "instances.h"
#include "values.h"

// What the entries of the vtables need of the system.
namespace cvdeveloper::native {

static_assert(sizeof(Value) == sizeof(VARIANT) && alignof(Value) == alignof(VARIANT));
static_assert(offsetof(Value, whole) == offsetof(VARIANT, llVal));
static_assert(sizeof(Boolean) == sizeof(VARIANT_BOOL));
static_assert(null_pointer == E_POINTER && done == S_OK);

namespace {

const VARIANT& as_variant(const Value& value) noexcept {
    return reinterpret_cast<const VARIANT&>(value);
}

Value as_value(const VARIANT& variant) noexcept {
    Value value;
    std::memcpy(&value, &variant, sizeof(value));
    return value;
}

const Operation& operation_of(const Call& call) noexcept {
    return *com::Instance::of(call.self).native_class().operation_of(call.entry);
}

}  // namespace

Status status_of_exception(const Head* self) noexcept {
    return com::set_error_information(com::Instance::of(self).native_class().interface_id());
}

std::string text_in(const wchar_t* text) {
    return com::from_bstr(text);
}

Variant value_in(const Value& value, const Call& call, std::size_t index) {
    Variant made;
    try {
        made = com::from_native(as_variant(value));
    } catch (const AutomationError& error) {
        raise(static_cast<RuntimeError>(error.number()),
              binding::describe({operation_of(call), index}));
    }
    if (made.is<Missing>()) {
        const Operation& operation = operation_of(call);
        const Default& left_out = operation.parameters[index].default_value;
        if (left_out.required()) {
            raise(RuntimeError::ArgumentNotOptional, binding::describe({operation, index}));
        }
        return left_out.value();
    }
    return made;
}

ObjectRef object_in(Interface* object) {
    return com::object_of(reinterpret_cast<IUnknown*>(object));
}

void raise_wrong_class(const Call& call, std::size_t index, std::string_view expected) {
    binding::raise_wrong_class({operation_of(call), index}, expected);
}

Text text_out(std::string_view text) {
    return com::to_bstr(text);
}

Interface* object_out(const ObjectRef& object) {
    return reinterpret_cast<Interface*>(com::dispatch_of(object));
}

void value_out(const Variant& value, Value& target) {
    target = as_value(com::to_native(value));
}

void replace(Text& target, std::string_view text) {
    Text made = com::to_bstr(text);
    SysFreeString(target);
    target = made;
}

void replace(Interface*& target, const ObjectRef& object) {
    Interface* made = object_out(object);
    if (target != nullptr) {
        reinterpret_cast<IUnknown*>(target)->Release();
    }
    target = made;
}

void replace(Value& target, const Variant& value) {
    if (com::is_by_reference(as_variant(target))) {
        com::store_by_reference(as_variant(target), value);
        return;
    }
    const Value made = as_value(com::to_native(value));
    VariantClear(reinterpret_cast<VARIANT*>(&target));
    target = made;
}

}  // namespace cvdeveloper::native
