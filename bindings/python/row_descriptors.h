#pragma once

#include "call.h"
#include "state.h"

// What stands in a library type for a row of its table: methods, attributes, indexed properties.
namespace cvdeveloper::python {

struct RowDescriptor {
    PyObject_HEAD vectorcallfunc call;  // of methods
    std::shared_ptr<State> state;
    Owned owner;             // the type
    const Operation* read;   // the method, or the reading of a property; may be missing
    const Operation* write;  // the writing of a property; may be missing
    ParameterNames names;    // of what is called: the method, the reading

    [[nodiscard]] const Operation& row() const noexcept { return read != nullptr ? *read : *write; }
};

inline RowDescriptor& descriptor(PyObject* object) noexcept {
    return *reinterpret_cast<RowDescriptor*>(object);
}

// The descriptor for the rows of one name.
Owned make_descriptor(State& state, PyTypeObject* owner, const Operation* read,
                      const Operation* write);

Owned make_method_type(PyObject* module);
Owned make_attribute_type(PyObject* module);
Owned make_indexed_type(PyObject* module);
Owned make_bound_indexed_type(PyObject* module);

// Slots and attributes (name, documentation, signature) that the three have in common. They hold
// their type and the type holds them: the garbage collector breaks the circle in the type.
void deallocate_descriptor(PyObject* self);
int traverse_descriptor(PyObject* self, visitproc visit, void* arg);
PyObject* represent_descriptor(PyObject* self);
extern PyGetSetDef descriptor_attributes[];

PyObject* call_method(PyObject* self, PyObject* const* arguments, std::size_t count,
                      PyObject* keywords);

// The library object behind the instance on which a descriptor is used. Error 424 for anything
// else.
Object& target_of(const RowDescriptor& self, PyObject* instance);

}  // namespace cvdeveloper::python
