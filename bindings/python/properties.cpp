#include <Python.h>
#include <structmember.h>

#include <array>
#include <cstddef>
#include <memory>

#include "cvdeveloper/automation/runtime_errors.h"
#include "description.h"
#include "errors.h"
#include "row_descriptors.h"

namespace cvdeveloper::python {

namespace {

// A property with an index, on one object: lst.SalutationShort, waiting for its index.
struct BoundIndexed {
    PyObject_HEAD vectorcallfunc call;
    Owned property;
    Owned instance;
};

BoundIndexed& bound(PyObject* object) noexcept {
    return *reinterpret_cast<BoundIndexed*>(object);
}

[[noreturn]] void raise_not_offered(const RowDescriptor& self) {
    raise(RuntimeError::NoSuchMember, self.row().name);
}

Owned read_attribute(const RowDescriptor& self, PyObject* instance) {
    if (self.read == nullptr) {
        raise_not_offered(self);
    }
    Object& object = target_of(self, instance);
    return Call(*self.state, *self.read).run(object);
}

// The value is a property's last argument; indexes come before it.
void write_value(const RowDescriptor& self, PyObject* instance, PyObject* key, PyObject* value) {
    if (self.write == nullptr || value == nullptr) {
        raise_not_offered(self);
    }
    Object& object = target_of(self, instance);
    Call call(*self.state, *self.write);
    const std::size_t indexes = self.write->parameters.size() - 1;
    if (key != nullptr && indexes > 1 && PyTuple_Check(key)) {
        const auto count = static_cast<std::size_t>(PyTuple_GET_SIZE(key));
        if (count > indexes) {
            raise_too_many_arguments(*self.write, count + 1);
        }
        for (std::size_t i = 0; i < count; ++i) {
            call.place_at(i, PyTuple_GET_ITEM(key, static_cast<Py_ssize_t>(i)));
        }
    } else if (key != nullptr) {
        call.place_at(0, key);
    }
    call.place_at(indexes, value);
    call.run(object);
}

PyObject* get_attribute(PyObject* self, PyObject* instance, PyObject*) {
    if (instance == nullptr) {
        return Owned::borrow(self).release();
    }
    const RowDescriptor& property = descriptor(self);
    return guarded(*property.state, [&] { return read_attribute(property, instance); });
}

int set_attribute(PyObject* self, PyObject* instance, PyObject* value) {
    const RowDescriptor& property = descriptor(self);
    return guarded(*property.state, -1, [&] {
        write_value(property, instance, nullptr, value);
        return 0;
    });
}

PyObject* call_bound(PyObject* self, PyObject* const* arguments, std::size_t count,
                     PyObject* keywords) {
    const RowDescriptor& property = descriptor(bound(self).property.get());
    return guarded(*property.state, [&] {
        Object& object = target_of(property, bound(self).instance.get());
        Call call(*property.state, *property.read);
        call.place(arguments, static_cast<std::size_t>(PyVectorcall_NARGS(count)), keywords,
                   property.names);
        return call.run(object);
    });
}

PyObject* get_indexed(PyObject* self, PyObject* instance, PyObject*) {
    if (instance == nullptr) {
        return Owned::borrow(self).release();
    }
    const RowDescriptor& property = descriptor(self);
    return guarded(*property.state, [&] {
        PyTypeObject* type = property.state->bound_indexed_type.type();
        Owned made = checked(type->tp_alloc(type, 0));
        bound(made.get()).call = call_bound;
        std::construct_at(&bound(made.get()).property, Owned::borrow(self));
        std::construct_at(&bound(made.get()).instance, Owned::borrow(instance));
        return made;
    });
}

PyObject* read_item(PyObject* self, PyObject* key) {
    const RowDescriptor& property = descriptor(bound(self).property.get());
    return guarded(*property.state, [&] {
        Object& object = target_of(property, bound(self).instance.get());
        Call call(*property.state, *property.read);
        if (property.read->parameters.size() > 1 && PyTuple_Check(key)) {
            call.place(PySequence_Fast_ITEMS(key), static_cast<std::size_t>(PyTuple_GET_SIZE(key)),
                       nullptr, property.names);
        } else {
            call.place_at(0, key);
        }
        return call.run(object);
    });
}

int write_item(PyObject* self, PyObject* key, PyObject* value) {
    const RowDescriptor& property = descriptor(bound(self).property.get());
    return guarded(*property.state, -1, [&] {
        write_value(property, bound(self).instance.get(), key, value);
        return 0;
    });
}

// What help and signatures want to know stands in the property.
PyObject* attribute_of_property(PyObject* self, void* name) {
    return PyObject_GetAttrString(bound(self).property.get(), static_cast<const char*>(name));
}

PyObject* instance_of_bound(PyObject* self, void*) {
    return Owned(bound(self).instance).release();
}

PyObject* signature_of_bound(PyObject* self, void*) {
    const RowDescriptor& property = descriptor(bound(self).property.get());
    return guarded(*property.state, [&] {
        const Owned described = describe_operation(*property.state, property.row());
        return checked(PyObject_CallFunctionObjArgs(property.state->make_signature.get(),
                                                    described.get(), Py_False, nullptr));
    });
}

char name_attribute[] = "__name__";
char qualified_name_attribute[] = "__qualname__";
char doc_attribute[] = "__doc__";
PyGetSetDef bound_attributes[] = {
    {"__name__", attribute_of_property, nullptr, nullptr, name_attribute},
    {"__qualname__", attribute_of_property, nullptr, nullptr, qualified_name_attribute},
    {"__doc__", attribute_of_property, nullptr, nullptr, doc_attribute},
    {"__self__", instance_of_bound, nullptr, nullptr, nullptr},
    {"__signature__", signature_of_bound, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyMemberDef bound_members[] = {
    {"__vectorcalloffset__", T_PYSSIZET, offsetof(BoundIndexed, call), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

void deallocate_bound(PyObject* self) {
    PyTypeObject* type = Py_TYPE(self);
    PyObject_GC_UnTrack(self);
    std::destroy_at(&bound(self).property);
    std::destroy_at(&bound(self).instance);
    type->tp_free(self);
    Py_DECREF(type);
}

int traverse_bound(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(Py_TYPE(self));
    Py_VISIT(bound(self).property.get());
    Py_VISIT(bound(self).instance.get());
    return 0;
}

Owned make_property_type(PyObject* module, const char* name, descrgetfunc get) {
    std::array slots{
        PyType_Slot{Py_tp_dealloc, reinterpret_cast<void*>(deallocate_descriptor)},
        PyType_Slot{Py_tp_traverse, reinterpret_cast<void*>(traverse_descriptor)},
        PyType_Slot{Py_tp_repr, reinterpret_cast<void*>(represent_descriptor)},
        PyType_Slot{Py_tp_getset, descriptor_attributes},
        PyType_Slot{Py_tp_descr_get, reinterpret_cast<void*>(get)},
        PyType_Slot{Py_tp_descr_set, reinterpret_cast<void*>(set_attribute)},
        PyType_Slot{0, nullptr},
    };
    PyType_Spec spec{name, sizeof(RowDescriptor), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_DISALLOW_INSTANTIATION,
                     slots.data()};
    return checked(PyType_FromModuleAndSpec(module, &spec, nullptr));
}

}  // namespace

Owned make_attribute_type(PyObject* module) {
    return make_property_type(module, "cvdeveloper.Attribute", get_attribute);
}

Owned make_indexed_type(PyObject* module) {
    return make_property_type(module, "cvdeveloper.IndexedProperty", get_indexed);
}

Owned make_bound_indexed_type(PyObject* module) {
    std::array slots{
        PyType_Slot{Py_tp_dealloc, reinterpret_cast<void*>(deallocate_bound)},
        PyType_Slot{Py_tp_traverse, reinterpret_cast<void*>(traverse_bound)},
        PyType_Slot{Py_tp_call, reinterpret_cast<void*>(PyVectorcall_Call)},
        PyType_Slot{Py_tp_getset, bound_attributes},
        PyType_Slot{Py_tp_members, bound_members},
        PyType_Slot{Py_mp_subscript, reinterpret_cast<void*>(read_item)},
        PyType_Slot{Py_mp_ass_subscript, reinterpret_cast<void*>(write_item)},
        PyType_Slot{0, nullptr},
    };
    PyType_Spec spec{"cvdeveloper.Indexed", sizeof(BoundIndexed), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_HAVE_VECTORCALL |
                         Py_TPFLAGS_DISALLOW_INSTANTIATION,
                     slots.data()};
    return checked(PyType_FromModuleAndSpec(module, &spec, nullptr));
}

}  // namespace cvdeveloper::python
