#include "row_descriptors.h"

#include <memory>
#include <string>

#include "cvdeveloper/automation/runtime_errors.h"
#include "description.h"
#include "documentation.h"
#include "errors.h"
#include "instances.h"
#include "texts.h"

namespace cvdeveloper::python {

namespace {

PyObject* name_of(PyObject* self, void*) {
    const RowDescriptor& row = descriptor(self);
    return guarded(*row.state, [&] { return text_to_python(row.row().name); });
}

PyObject* qualified_name_of(PyObject* self, void*) {
    const RowDescriptor& row = descriptor(self);
    return guarded(*row.state, [&] {
        const Owned owner = checked(PyObject_GetAttrString(row.owner.get(), "__qualname__"));
        return checked(
            PyUnicode_FromFormat("%U.%U", owner.get(), text_to_python(row.row().name).get()));
    });
}

PyObject* module_of(PyObject* self, void*) {
    const RowDescriptor& row = descriptor(self);
    return Owned(row.state->module_name).release();
}

PyObject* documentation_of(PyObject* self, void*) {
    const RowDescriptor& row = descriptor(self);
    return guarded(*row.state, [&] { return text_to_python(documentation(row.row())); });
}

PyObject* owner_of(PyObject* self, void*) {
    return Owned(descriptor(self).owner).release();
}

PyObject* signature_of(PyObject* self, void*) {
    const RowDescriptor& row = descriptor(self);
    return guarded(*row.state, [&] {
        const Owned described = describe_operation(*row.state, row.row());
        return checked(PyObject_CallFunctionObjArgs(row.state->make_signature.get(),
                                                    described.get(), Py_True, nullptr));
    });
}

Owned& type_of_descriptor(State& state, const Operation* read) {
    if (read != nullptr && read->kind == OperationKind::Method) {
        return state.method_type;
    }
    // Where the index may be left out, the attribute is the whole: rs.Fields, rs.Fields["DSN"].
    return read != nullptr && read->required_arguments() > 0 ? state.indexed_type
                                                             : state.attribute_type;
}

}  // namespace

PyGetSetDef descriptor_attributes[] = {
    {"__name__", name_of, nullptr, nullptr, nullptr},
    {"__qualname__", qualified_name_of, nullptr, nullptr, nullptr},
    {"__module__", module_of, nullptr, nullptr, nullptr},
    {"__doc__", documentation_of, nullptr, nullptr, nullptr},
    {"__objclass__", owner_of, nullptr, nullptr, nullptr},
    {"__signature__", signature_of, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

Owned make_descriptor(State& state, PyTypeObject* owner, const Operation* read,
                      const Operation* write) {
    PyTypeObject* type = type_of_descriptor(state, read).type();
    Owned made = checked(type->tp_alloc(type, 0));
    RowDescriptor& fresh = descriptor(made.get());
    std::construct_at(&fresh.state, state.shared_from_this());
    std::construct_at(&fresh.owner, Owned::borrow(reinterpret_cast<PyObject*>(owner)));
    std::construct_at(&fresh.names);
    fresh.call = call_method;
    fresh.read = read;
    fresh.write = write;
    fresh.names = parameter_names(fresh.row());
    return made;
}

void deallocate_descriptor(PyObject* self) {
    PyTypeObject* type = Py_TYPE(self);
    PyObject_GC_UnTrack(self);
    RowDescriptor& dying = descriptor(self);
    std::destroy_at(&dying.names);
    std::destroy_at(&dying.owner);
    std::destroy_at(&dying.state);
    type->tp_free(self);
    Py_DECREF(type);
}

int traverse_descriptor(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(Py_TYPE(self));
    Py_VISIT(descriptor(self).owner.get());
    return 0;
}

PyObject* represent_descriptor(PyObject* self) {
    const RowDescriptor& row = descriptor(self);
    return guarded(*row.state, [&] {
        const char* kind = row.row().kind == OperationKind::Method ? "method" : "attribute";
        return checked(PyUnicode_FromFormat("<%s '%U' of '%s' objects>", kind,
                                            text_to_python(row.row().name).get(),
                                            row.owner.type()->tp_name));
    });
}

Object& target_of(const RowDescriptor& self, PyObject* instance) {
    if (!PyObject_TypeCheck(instance, self.owner.type())) {
        raise(RuntimeError::ObjectRequired, self.row().name);
    }
    return object_of(instance);
}

}  // namespace cvdeveloper::python
