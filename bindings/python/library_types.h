#pragma once

#include "cvdeveloper/automation/library_object.h"
#include "state.h"

namespace cvdeveloper::python {

// The module behind the types, for what is only known there. The type may be derived from one.
State& state_of(PyObject* module);
State& state_of(PyTypeObject* type);

// Makes a type from a table. Without a constructor its instances come from the library alone and
// no class derives from it.
Owned make_library_type(State& state, PyObject* module, LibraryObject& sample, newfunc constructor,
                        PyMethodDef* methods = nullptr);

// The type of the object's class, made at its first appearance.
PyTypeObject* type_for(State& state, LibraryObject& object);

// The library's own classes: makes their types and puts them into the module.
void add_library_classes(State& state, PyObject* module);

}  // namespace cvdeveloper::python
