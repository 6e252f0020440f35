#pragma once

#include "state.h"

// The tables as plain Python values, for signatures, stub files and reference pages.
namespace cvdeveloper::python {

Owned describe_operation(State& state, const Operation& operation);
Owned describe_class(State& state, const InterfaceTable& table, bool creatable);
Owned describe_enumerations();

}  // namespace cvdeveloper::python
