#pragma once

#include <memory>

#include "cvdeveloper/automation/library_object.h"
#include "state.h"

// The Python objects that stand for the library's objects and for those of hosts written in C++.
// An object that is given out twice is the same Python object while that lives.
namespace cvdeveloper::python {

struct Instance {
    PyObject_HEAD PyObject* weak_references;
    std::shared_ptr<State> state;
    ObjectRef object;  // nothing after the garbage collector has taken it
};

// Whether a Python object stands for an object: is of one of these types, or of a class that Python
// code has derived from one.
bool is_instance(PyObject* object) noexcept;

// The object of a library type's instance. Error 91 after the garbage collector has taken it.
Object& object_of(PyObject* instance);

// A new instance of the type, which is the object's own.
Owned make_instance(State& state, PyTypeObject* type, ObjectRef object);

// The Python object for an object: the one it came from, the instance there is, or a new one.
Owned instance_for(State& state, const ObjectRef& object);

// The object behind a Python object: a library object's own, else a wrapper of the Python object.
ObjectRef wrapped(State& state, PyObject* object);

// Slots that all these types share.
void deallocate_instance(PyObject* self);
int traverse_instance(PyObject* self, visitproc visit, void* arg);
int clear_instance(PyObject* self);
extern PyMemberDef instance_members[];

// The type of objects that have no interface table: they pass through and show nothing.
Owned make_foreign_type(PyObject* module);

}  // namespace cvdeveloper::python
