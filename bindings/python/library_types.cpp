#include "library_types.h"

#include <map>
#include <string>
#include <vector>

#include "cvdeveloper/automation/runtime_errors.h"
#include "errors.h"
#include "instances.h"
#include "items.h"
#include "row_descriptors.h"
#include "texts.h"

namespace cvdeveloper::python {

namespace {

struct Rows {
    const Operation* read = nullptr;
    const Operation* write = nullptr;
};

bool has_member_spelt(const InterfaceTable& table, std::string_view name) {
    for (const Operation* operation : table.operations()) {
        if (operation->name == name) {
            return true;
        }
    }
    return false;
}

// Whether the interface or a class derived from it has the name. Needs the error indicator clear.
bool has_member(PyObject* self, const InterfaceTable& table, PyObject* name,
                std::string_view member) {
    return has_member_spelt(table, member) ||
           (Py_TYPE(self)->tp_dealloc != deallocate_instance &&
            PyObject_HasAttr(reinterpret_cast<PyObject*>(Py_TYPE(self)), name) != 0);
}

// Turns the interpreter's AttributeError into error 438; one for a missing member names the nearest
// ones. Python's own protocols keep theirs, and so does the reading of a member that raises one.
void explain_attribute_error(PyObject* self, PyObject* name, bool writing) {
    if (PyErr_ExceptionMatches(PyExc_AttributeError) == 0) {
        return;
    }
    const Instance& instance = *reinterpret_cast<Instance*>(self);
    const auto* object = dynamic_cast<const LibraryObject*>(instance.object.get());
    const std::string_view member = view_of_python(name).value_or(std::string_view());
    if (object == nullptr || member.starts_with("__")) {
        return;
    }
    const RaisedException raised;
    try {
        if (!has_member(self, object->table(), name, member)) {
            object->table().raise_no_such_member(member);
        }
        if (writing && has_member_spelt(object->table(), member)) {
            raise(RuntimeError::NoSuchMember, member);
        }
        raised.raise_again();
    } catch (const std::exception&) {
        raise_no_attribute(*instance.state);
    }
}

PyObject* get_member(PyObject* self, PyObject* name) {
    PyObject* value = PyObject_GenericGetAttr(self, name);
    if (value == nullptr) {
        explain_attribute_error(self, name, false);
    }
    return value;
}

int set_member(PyObject* self, PyObject* name, PyObject* value) {
    const int status = PyObject_GenericSetAttr(self, name, value);
    if (status < 0) {
        explain_attribute_error(self, name, true);
    }
    return status;
}

void add_rows(State& state, PyTypeObject* type, const InterfaceTable& table) {
    std::map<std::string_view, Rows> by_name;
    for (const Operation* operation : table.operations()) {
        if (operation->parameters.size() > most_parameters) {
            raise(RuntimeError::WrongArgumentCount, operation->name);
        }
        Rows& rows = by_name[operation->name];
        (operation->kind == OperationKind::Put ? rows.write : rows.read) = operation;
    }
    for (const auto& [name, rows] : by_name) {
        const Owned row = make_descriptor(state, type, rows.read, rows.write);
        check(PyObject_SetAttr(reinterpret_cast<PyObject*>(type), name_to_python(name).get(),
                               row.get()));
    }
}

}  // namespace

State& state_of(PyObject* module) {
    return **static_cast<std::shared_ptr<State>*>(PyModule_GetState(module));
}

Owned make_library_type(State& state, PyObject* module, LibraryObject& sample, newfunc constructor,
                        PyMethodDef* methods) {
    const InterfaceTable& table = sample.table();
    const std::string name = "cvdeveloper." + std::string(table.class_name());
    std::string help(table.help());
    std::vector<PyType_Slot> slots{
        {Py_tp_dealloc, reinterpret_cast<void*>(deallocate_instance)},
        {Py_tp_traverse, reinterpret_cast<void*>(traverse_instance)},
        {Py_tp_clear, reinterpret_cast<void*>(clear_instance)},
        {Py_tp_getattro, reinterpret_cast<void*>(get_member)},
        {Py_tp_setattro, reinterpret_cast<void*>(set_member)},
        {Py_tp_members, instance_members},
        {Py_tp_doc, help.data()},
    };
    if (constructor != nullptr) {
        slots.push_back({Py_tp_new, reinterpret_cast<void*>(constructor)});
    }
    if (methods != nullptr) {
        slots.push_back({Py_tp_methods, methods});
    }
    add_item_slots(sample, slots);
    slots.push_back({0, nullptr});
    const unsigned long flags =
        constructor != nullptr ? Py_TPFLAGS_BASETYPE : Py_TPFLAGS_DISALLOW_INSTANTIATION;
    PyType_Spec spec{name.c_str(), sizeof(Instance), 0,
                     static_cast<unsigned>(Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | flags),
                     slots.data()};
    Owned type = checked(PyType_FromModuleAndSpec(module, &spec, nullptr));
    add_rows(state, type.type(), table);
    state.library_types.insert_or_assign(&table, type);
    return type;
}

PyTypeObject* type_for(State& state, LibraryObject& object) {
    const auto found = state.library_types.find(&object.table());
    if (found != state.library_types.end()) {
        return found->second.type();
    }
    return make_library_type(state, state.module, object, nullptr).type();
}

}  // namespace cvdeveloper::python
