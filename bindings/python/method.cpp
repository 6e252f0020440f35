#include <Python.h>
#include <structmember.h>

#include <array>
#include <cstddef>

#include "cvdeveloper/automation/runtime_errors.h"
#include "errors.h"
#include "row_descriptors.h"

namespace cvdeveloper::python {

namespace {

PyMemberDef members[] = {
    {"__vectorcalloffset__", T_PYSSIZET, offsetof(RowDescriptor, call), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

PyObject* bind_to(PyObject* self, PyObject* instance, PyObject*) {
    if (instance == nullptr) {
        return Owned::borrow(self).release();
    }
    return PyMethod_New(self, instance);
}

}  // namespace

PyObject* call_method(PyObject* self, PyObject* const* arguments, std::size_t count,
                      PyObject* keywords) {
    const RowDescriptor& method = descriptor(self);
    State& state = *method.state;
    return guarded(state, [&] {
        const auto given = static_cast<std::size_t>(PyVectorcall_NARGS(count));
        if (given == 0) {
            raise(RuntimeError::ObjectRequired, method.row().name);
        }
        Object& object = target_of(method, arguments[0]);
        Call call(state, *method.read);
        call.place(arguments + 1, given - 1, keywords, method.names);
        return call.run(object);
    });
}

Owned make_method_type(PyObject* module) {
    std::array slots{
        PyType_Slot{Py_tp_dealloc, reinterpret_cast<void*>(deallocate_descriptor)},
        PyType_Slot{Py_tp_traverse, reinterpret_cast<void*>(traverse_descriptor)},
        PyType_Slot{Py_tp_repr, reinterpret_cast<void*>(represent_descriptor)},
        PyType_Slot{Py_tp_getset, descriptor_attributes},
        PyType_Slot{Py_tp_members, members},
        PyType_Slot{Py_tp_call, reinterpret_cast<void*>(PyVectorcall_Call)},
        PyType_Slot{Py_tp_descr_get, reinterpret_cast<void*>(bind_to)},
        PyType_Slot{0, nullptr},
    };
    PyType_Spec spec{"cvdeveloper.Operation", sizeof(RowDescriptor), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_HAVE_VECTORCALL |
                         Py_TPFLAGS_METHOD_DESCRIPTOR | Py_TPFLAGS_DISALLOW_INSTANTIATION,
                     slots.data()};
    return checked(PyType_FromModuleAndSpec(module, &spec, nullptr));
}

}  // namespace cvdeveloper::python
