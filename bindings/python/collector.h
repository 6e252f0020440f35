#pragma once

#include <Python.h>

#include "cvdeveloper/automation/object.h"

namespace cvdeveloper::python {

// Shows the garbage collector the Python objects that a library object keeps alive through its
// session, where nobody else does: the object has one owner, its Python instance, and what it owns
// is owned from inside alone. What has another owner is not shown, and so never collected early.
int visit_python_objects(const Object& root, visitproc visit, void* arg) noexcept;

}  // namespace cvdeveloper::python
