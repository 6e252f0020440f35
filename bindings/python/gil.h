#pragma once

#include <Python.h>

namespace cvdeveloper::python {

// Whether this thread holds the interpreter lock; false once the interpreter is gone.
bool holds_interpreter_lock() noexcept;

// Holds the interpreter lock for its lifetime, whatever the thread held before.
// Error 429 where the interpreter is gone.
class InterpreterLock {
  public:
    InterpreterLock();
    InterpreterLock(const InterpreterLock&) = delete;
    InterpreterLock& operator=(const InterpreterLock&) = delete;
    ~InterpreterLock();

  private:
    PyGILState_STATE state_;
};

// Gives a reference back from any thread. Once the interpreter is gone there is nothing to give
// back to.
void give_back(PyObject* object) noexcept;

}  // namespace cvdeveloper::python
