#include "gil.h"

#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper::python {

bool holds_interpreter_lock() noexcept {
    return PyGILState_GetThisThreadState() != nullptr && PyGILState_Check() != 0;
}

InterpreterLock::InterpreterLock() : state_() {
    if (!holds_interpreter_lock() && Py_IsInitialized() == 0) {
        raise(RuntimeError::CannotCreateObject, "Python ist beendet");
    }
    state_ = PyGILState_Ensure();
}

InterpreterLock::~InterpreterLock() {
    PyGILState_Release(state_);
}

void give_back(PyObject* object) noexcept {
    if (holds_interpreter_lock()) {
        Py_XDECREF(object);
    } else if (Py_IsInitialized() != 0) {
        const PyGILState_STATE state = PyGILState_Ensure();
        Py_XDECREF(object);
        PyGILState_Release(state);
    }
}

}  // namespace cvdeveloper::python
