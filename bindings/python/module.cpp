#include <Python.h>

#include <array>
#include <memory>
#include <string>

#include "blocking.h"
#include "cvdeveloper/enumerations.h"
#include "dates.h"
#include "errors.h"
#include "instances.h"
#include "items.h"
#include "library_types.h"
#include "registry.h"
#include "row_descriptors.h"
#include "state.h"
#include "texts.h"

namespace cvdeveloper::python {

namespace {

using SharedState = std::shared_ptr<State>;

SharedState& shared_state(PyObject* module) noexcept {
    return *static_cast<SharedState*>(PyModule_GetState(module));
}

Owned member_of(const char* module_name, const char* name) {
    const Owned module = checked(PyImport_ImportModule(module_name));
    return checked(PyObject_GetAttrString(module.get(), name));
}

void import_package(State& state) {
    state.automation_error = member_of("cvdeveloper._values", "AutomationError");
    state.no_such_member = member_of("cvdeveloper._values", "NoSuchMember");
    state.ref = member_of("cvdeveloper._values", "Ref");
    state.empty = member_of("cvdeveloper._values", "Empty");
    state.iterate_rows = member_of("cvdeveloper._rows", "iterate");
    state.make_signature = member_of("cvdeveloper._signatures", "make_signature");
    state.module_name = name_to_python("cvdeveloper");
    state.value_name = name_to_python("value");
}

void add_enumerations(State& state, PyObject* module) {
    const Owned int_enum = member_of("enum", "IntEnum");
    const Owned naming = checked(Py_BuildValue("{s:s}", "module", "cvdeveloper"));
    for (const Enumeration& enumeration : enumerations()) {
        const Owned members = checked(PyDict_New());
        for (const EnumerationMember& member : enumeration.members) {
            check(PyDict_SetItem(members.get(), name_to_python(member.name).get(),
                                 checked(PyLong_FromLong(member.value)).get()));
        }
        const Owned arguments =
            checked(PyTuple_Pack(2, name_to_python(enumeration.name).get(), members.get()));
        const Owned type = checked(PyObject_Call(int_enum.get(), arguments.get(), naming.get()));
        check(PyModule_AddObjectRef(module, std::string(enumeration.name).c_str(), type.get()));
        state.enumerations.emplace(enumeration.name, type);
    }
}

void clear_registry_at_exit(PyObject* module) {
    const Owned let_go = checked(PyObject_GetAttrString(module, "_let_go_of_everything"));
    const Owned register_exit = member_of("atexit", "register");
    checked(PyObject_CallOneArg(register_exit.get(), let_go.get()));
}

// The registry and the lock's hook are the process's, and serve one interpreter.
bool is_main_interpreter() {
    if (PyInterpreterState_Get() == PyInterpreterState_Main()) {
        return true;
    }
    PyErr_SetString(PyExc_ImportError, "cvdeveloper works in the main interpreter only");
    return false;
}

int set_up(PyObject* module) {
    if (!is_main_interpreter()) {
        return -1;
    }
    std::construct_at(&shared_state(module), std::make_shared<State>());
    State& state = *shared_state(module);
    return guarded(state, -1, [&] {
        state.module = module;
        import_datetime();
        import_package(state);
        state.method_type = make_method_type(module);
        state.attribute_type = make_attribute_type(module);
        state.indexed_type = make_indexed_type(module);
        state.bound_indexed_type = make_bound_indexed_type(module);
        state.foreign_type = make_foreign_type(module);
        add_enumerations(state, module);
        add_library_classes(state, module);
        install_blocking_hook();
        register_own_classes();
        clear_registry_at_exit(module);
        return 0;
    });
}

// Before the module is set up, and after a failure to, there is no state yet.
bool has_state(PyObject* module) noexcept {
    return PyModule_GetState(module) != nullptr && shared_state(module);
}

int traverse(PyObject* module, visitproc visit, void* arg) {
    return has_state(module) ? shared_state(module)->traverse(visit, arg) : 0;
}

int clear(PyObject* module) {
    if (has_state(module)) {
        shared_state(module)->clear();
    }
    return 0;
}

void free_state(void* module) {
    auto* self = static_cast<PyObject*>(module);
    if (has_state(self)) {
        shared_state(self)->clear();
        shared_state(self)->module = nullptr;
        std::destroy_at(&shared_state(self));
    }
}

PyMethodDef row_functions[] = {
    {"_field_names", field_names, METH_O, nullptr},
    {"_current_row", current_row, METH_O, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

int add_functions(PyObject* module) {
    return PyModule_AddFunctions(module, row_functions);
}

PyModuleDef_Slot slots[] = {
    {Py_mod_exec, reinterpret_cast<void*>(set_up)},
    {Py_mod_exec, reinterpret_cast<void*>(add_functions)},
    {0, nullptr},
};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT,
    "cvdeveloper._cvdeveloper",
    "The library's classes, made from its interface tables.",
    sizeof(SharedState),
    registry_functions,
    slots,
    traverse,
    clear,
    free_state,
};

}  // namespace

State& state_of(PyTypeObject* type) {
    return *shared_state(PyType_GetModuleByDef(type, &definition));
}

}  // namespace cvdeveloper::python

// The interpreter asks for this name.
PyMODINIT_FUNC PyInit__cvdeveloper() {  // NOLINT(bugprone-reserved-identifier)
    return PyModuleDef_Init(&cvdeveloper::python::definition);
}
