#pragma once

#include <Python.h>

#include <utility>

namespace cvdeveloper::python {

// The interpreter's error indicator is set: thrown to unwind to the entry point.
struct PythonError {};

// Owns one reference to a Python object, or nothing. Needs the interpreter lock.
class Owned {
  public:
    Owned() noexcept = default;
    static Owned steal(PyObject* object) noexcept { return Owned(object); }
    static Owned borrow(PyObject* object) noexcept {
        Py_XINCREF(object);
        return Owned(object);
    }
    Owned(const Owned& other) noexcept : object_(other.object_) { Py_XINCREF(object_); }
    Owned(Owned&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Owned& operator=(Owned other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Owned() { Py_XDECREF(object_); }

    [[nodiscard]] PyObject* get() const noexcept { return object_; }
    [[nodiscard]] PyTypeObject* type() const noexcept {
        return reinterpret_cast<PyTypeObject*>(object_);
    }
    PyObject* release() noexcept { return std::exchange(object_, nullptr); }
    explicit operator bool() const noexcept { return object_ != nullptr; }

  private:
    explicit Owned(PyObject* object) noexcept : object_(object) {}

    PyObject* object_ = nullptr;
};

// Takes over what an interpreter function has made; its failure unwinds.
inline Owned checked(PyObject* fresh) {
    if (fresh == nullptr) {
        throw PythonError{};
    }
    return Owned::steal(fresh);
}

inline void check(int status) {
    if (status < 0) {
        throw PythonError{};
    }
}

}  // namespace cvdeveloper::python
