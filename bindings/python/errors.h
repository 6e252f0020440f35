#pragma once

#include "state.h"

// The one translation of errors between the library and Python.
namespace cvdeveloper::python {

// The number of a Python exception that is no AutomationError: an error of automation as such.
constexpr std::int32_t foreign_error_number = 440;

// Throws the exception that the interpreter has raised: an Interrupt where it is none that programs
// are meant to handle (KeyboardInterrupt, SystemExit), else an AutomationError. Both keep it.
[[noreturn]] void throw_python_exception(State& state);

// Throws the exception that a signal's handler has raised, as an Interrupt whatever it is.
[[noreturn]] void throw_interrupt_of_python();

// Drops the exception that the interpreter has raised, where it is of the kind that was expected.
// Any other unwinds: above all a KeyboardInterrupt, which can come out of any Python code.
void drop_exception(PyObject* expected = PyExc_Exception);

// The exception that the interpreter has raised, put aside.
class RaisedException {
  public:
    RaisedException() noexcept { PyErr_Fetch(&type_, &value_, &traceback_); }
    RaisedException(const RaisedException&) = delete;
    RaisedException& operator=(const RaisedException&) = delete;
    ~RaisedException();

    void raise_again() const noexcept;

  private:
    PyObject* type_ = nullptr;
    PyObject* value_ = nullptr;
    PyObject* traceback_ = nullptr;
};

// Raises, in the interpreter, the C++ exception that is being handled.
void raise_in_python(State& state) noexcept;

// As raise_in_python, for the attribute that a library object does not have: an AttributeError too.
void raise_no_attribute(State& state) noexcept;

// Runs the body of an entry point: no C++ exception leaves it.
template <class Result, class Body>
Result guarded(State& state, Result failed, Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        raise_in_python(state);
        return failed;
    }
}

template <class Body>
PyObject* guarded(State& state, Body&& body) noexcept {
    return guarded(state, static_cast<PyObject*>(nullptr),
                   [&]() -> PyObject* { return body().release(); });
}

}  // namespace cvdeveloper::python
