#pragma once

#include <string_view>

#include "cvdeveloper/automation/interface_table.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "state.h"

// Values between Python and automation.
namespace cvdeveloper::python {

// Why a Python value is no automation value. Who knows the argument's name makes the error of it.
struct NoSuchValue {
    RuntimeError error;
    std::string_view why;
};

// Throws NoSuchValue. A Ref is not looked into: that is the business of a call.
Variant value_of_python(State& state, PyObject* object);

// None and nothing are null objects; library objects and Python's own give back what they hold;
// any other Python object is wrapped. Throws NoSuchValue for plain values.
ObjectRef object_of_python(State& state, PyObject* object);

Owned value_to_python(State& state, const Variant& value);
// A member of the enumeration where the type is one.
Owned value_to_python(State& state, const Variant& value, const TypeName& type);
Owned object_to_python(State& state, const ObjectRef& object);

}  // namespace cvdeveloper::python
