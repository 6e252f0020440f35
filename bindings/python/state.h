#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "cvdeveloper/automation/interface_table.h"
#include "owned.h"

namespace cvdeveloper::python {

// Everything that the module keeps. Shared by the module and by each object that the extension has
// made, because any of them may be the last one to go.
struct State : std::enable_shared_from_this<State> {
    // Classes and functions of the package that are written in Python.
    Owned automation_error;
    Owned no_such_member;
    Owned ref;
    Owned empty;
    Owned iterate_rows;
    Owned make_signature;

    PyObject* module = nullptr;  // not owned: it owns this

    Owned module_name;  // "cvdeveloper"
    Owned value_name;   // "value"

    // The extension's own types.
    Owned method_type;
    Owned attribute_type;
    Owned indexed_type;
    Owned bound_indexed_type;
    Owned foreign_type;  // objects that answer to names but have no interface table

    std::unordered_map<const InterfaceTable*, Owned> library_types;
    std::unordered_map<std::string_view, Owned> enumerations;

    // The Python object that stands for a library object, while it lives. Not owned.
    std::unordered_map<const Object*, PyObject*> instances;

    int traverse(visitproc visit, void* arg);
    void clear();

  private:
    void each(const std::function<void(Owned&)>& use);
};

}  // namespace cvdeveloper::python
