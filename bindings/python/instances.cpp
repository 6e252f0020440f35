#include "instances.h"

#include <structmember.h>

#include <array>
#include <cstddef>
#include <utility>

#include "collector.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "library_types.h"
#include "python_object.h"

namespace cvdeveloper::python {

namespace {

Instance& instance(PyObject* self) noexcept {
    return *reinterpret_cast<Instance*>(self);
}

// Lets the library object go. What goes with it may run Python code of any kind.
void let_go(Instance& self) {
    if (!self.object) {
        return;
    }
    // A weak reference's callback may have made another instance for the object by now.
    auto& instances = self.state->instances;
    if (const auto found = instances.find(self.object.get());
        found != instances.end() && found->second == reinterpret_cast<PyObject*>(&self)) {
        instances.erase(found);
    }
    PyObject* type = nullptr;
    PyObject* value = nullptr;
    PyObject* traceback = nullptr;
    PyErr_Fetch(&type, &value, &traceback);
    self.object = nullptr;
    PyErr_Restore(type, value, traceback);
}

}  // namespace

PyMemberDef instance_members[] = {
    {"__weaklistoffset__", T_PYSSIZET, offsetof(Instance, weak_references), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

bool is_instance(PyObject* object) noexcept {
    for (const PyTypeObject* type = Py_TYPE(object); type != nullptr; type = type->tp_base) {
        if (type->tp_dealloc == deallocate_instance) {
            return true;
        }
    }
    return false;
}

Object& object_of(PyObject* self) {
    const ObjectRef& object = instance(self).object;
    if (!object) {
        raise(RuntimeError::ObjectNotSet);
    }
    return *object;
}

Owned make_instance(State& state, PyTypeObject* type, ObjectRef object) {
    Owned made = checked(type->tp_alloc(type, 0));
    Instance& fresh = instance(made.get());
    std::construct_at(&fresh.state, state.shared_from_this());
    std::construct_at(&fresh.object, std::move(object));
    state.instances[fresh.object.get()] = made.get();
    return made;
}

Owned instance_for(State& state, const ObjectRef& object) {
    if (const auto found = state.instances.find(object.get());
        found != state.instances.end() && Py_REFCNT(found->second) > 0) {
        return Owned::borrow(found->second);
    }
    if (const auto* from_python = dynamic_cast<const PythonObject*>(object.get())) {
        return Owned::borrow(from_python->get());
    }
    if (auto* of_library = dynamic_cast<LibraryObject*>(object.get())) {
        return make_instance(state, type_for(state, *of_library), object);
    }
    return make_instance(state, state.foreign_type.type(), object);
}

ObjectRef wrapped(State& state, PyObject* object) {
    if (is_instance(object)) {
        return ObjectRef(&object_of(object));
    }
    return make_object<PythonObject>(state.shared_from_this(), object);
}

void deallocate_instance(PyObject* self) {
    PyTypeObject* type = Py_TYPE(self);
    PyObject_GC_UnTrack(self);
    Instance& dying = instance(self);
    // First, so that no code which runs while the object goes can get hold of this one again.
    if (dying.weak_references != nullptr) {
        PyObject_ClearWeakRefs(self);
    }
    let_go(dying);
    std::destroy_at(&dying.object);
    std::destroy_at(&dying.state);
    type->tp_free(self);
    Py_DECREF(type);
}

int traverse_instance(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(Py_TYPE(self));
    const ObjectRef& object = instance(self).object;
    return object ? visit_python_objects(*object, visit, arg) : 0;
}

int clear_instance(PyObject* self) {
    let_go(instance(self));
    return 0;
}

Owned make_foreign_type(PyObject* module) {
    std::array slots{
        PyType_Slot{Py_tp_dealloc, reinterpret_cast<void*>(deallocate_instance)},
        PyType_Slot{Py_tp_traverse, reinterpret_cast<void*>(traverse_instance)},
        PyType_Slot{Py_tp_clear, reinterpret_cast<void*>(clear_instance)},
        PyType_Slot{Py_tp_members, instance_members},
        PyType_Slot{0, nullptr},
    };
    PyType_Spec spec{"cvdeveloper.ForeignObject", sizeof(Instance), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_DISALLOW_INSTANTIATION,
                     slots.data()};
    return checked(PyType_FromModuleAndSpec(module, &spec, nullptr));
}

}  // namespace cvdeveloper::python
