#include "errors.h"

#include <new>
#include <string>

#include "cvdeveloper/automation/error.h"
#include "gil.h"
#include "texts.h"

namespace cvdeveloper::python {

namespace {

// A failure inside the library that is nobody's error.
constexpr std::int32_t internal_error_number = 51;

// A Python exception on its way through the library.
class HeldException final : public AutomationError::Cause {
  public:
    explicit HeldException(Owned exception) noexcept : exception_(exception.release()) {}
    HeldException(const HeldException&) = delete;
    HeldException& operator=(const HeldException&) = delete;
    ~HeldException() override { give_back(exception_); }

    void raise_again() const {
        auto* type = reinterpret_cast<PyObject*>(Py_TYPE(exception_));
        Py_INCREF(type);
        Py_INCREF(exception_);
        PyErr_Restore(type, exception_, PyException_GetTraceback(exception_));
    }

  private:
    PyObject* exception_;
};

class PythonInterrupt final : public Interrupt {
  public:
    // NOLINTNEXTLINE(bugprone-throw-keyword-missing): it is kept, not thrown.
    explicit PythonInterrupt(std::shared_ptr<const HeldException> held) : held_(std::move(held)) {}

    void raise_again() const { held_->raise_again(); }

  private:
    std::shared_ptr<const HeldException> held_;
};

void ensure_raised() noexcept {
    if (PyErr_Occurred() == nullptr) {
        PyErr_SetString(PyExc_SystemError, "an error was announced and none raised");
    }
}

Owned take_exception() {
    ensure_raised();
    PyObject* type = nullptr;
    PyObject* value = nullptr;
    PyObject* traceback = nullptr;
    PyErr_Fetch(&type, &value, &traceback);
    PyErr_NormalizeException(&type, &value, &traceback);
    const Owned type_owned = Owned::steal(type);
    const Owned traceback_owned = Owned::steal(traceback);
    if (traceback != nullptr) {
        PyException_SetTraceback(value, traceback);
    }
    return Owned::steal(value);
}

// Texts about an exception must not fail: what cannot be had is left out.
std::string text_or_nothing(const Owned& object) {
    const Owned text = object ? Owned::steal(PyObject_Str(object.get())) : Owned();
    if (!text) {
        drop_exception();
        return {};
    }
    return text_of_python(text.get()).value_or(std::string());
}

std::string attribute_text(PyObject* exception, const char* name) {
    return text_or_nothing(Owned::steal(PyObject_GetAttrString(exception, name)));
}

std::int32_t number_of(PyObject* exception) {
    const Owned number = Owned::steal(PyObject_GetAttrString(exception, "number"));
    const long value = number ? PyLong_AsLong(number.get()) : -1;
    if (PyErr_Occurred() != nullptr) {
        drop_exception();
        return foreign_error_number;
    }
    return static_cast<std::int32_t>(value);
}

void raise_as(PyObject* type, const AutomationError& error) {
    if (type == nullptr) {  // the module is being taken down
        PyErr_SetString(PyExc_RuntimeError, error.what());
        return;
    }
    try {
        const Owned source = text_to_python(error.source());
        const Owned description = text_to_python(error.description());
        const Owned exception = checked(
            PyObject_CallFunction(type, "iOO", error.number(), source.get(), description.get()));
        PyErr_SetObject(type, exception.get());
    } catch (const PythonError&) {
        return;
    }
}

void raise_error(PyObject* type, const AutomationError& error) {
    if (const auto* held = dynamic_cast<const HeldException*>(error.cause().get())) {
        held->raise_again();
    } else {
        raise_as(type, error);
    }
}

void raise_in_python_as(State& state, PyObject* type) noexcept {
    try {
        throw;
    } catch (const PythonError&) {
        ensure_raised();
    } catch (const AutomationError& error) {
        raise_error(type, error);
    } catch (const PythonInterrupt& interrupt) {
        interrupt.raise_again();
    } catch (const Interrupt&) {
        PyErr_SetNone(PyExc_KeyboardInterrupt);
    } catch (const std::bad_alloc&) {
        PyErr_NoMemory();
    } catch (const std::exception& error) {
        raise_as(state.automation_error.get(),
                 AutomationError(internal_error_number, "", error.what()));
    }
}

// The exception as the library knows errors.
AutomationError error_of(State& state, const Owned& exception) {
    PyObject* raised = exception.get();
    const auto held = std::make_shared<const HeldException>(exception);
    if (state.automation_error && PyObject_TypeCheck(raised, state.automation_error.type())) {
        return {number_of(raised), attribute_text(raised, "source"),
                attribute_text(raised, "description"), held};
    }
    return {foreign_error_number, Py_TYPE(raised)->tp_name, text_or_nothing(exception), held};
}

bool is_for_programs(PyObject* exception) noexcept {
    return PyType_IsSubtype(Py_TYPE(exception), reinterpret_cast<PyTypeObject*>(PyExc_Exception)) !=
           0;
}

}  // namespace

void throw_python_exception(State& state) {
    const Owned exception = take_exception();
    if (!is_for_programs(exception.get())) {
        throw PythonInterrupt(std::make_shared<const HeldException>(exception));
    }
    try {
        throw error_of(state, exception);
    } catch (const PythonError&) {  // an interrupt, while the exception was asked for its text
        throw_interrupt_of_python();
    }
}

void throw_interrupt_of_python() {
    throw PythonInterrupt(std::make_shared<const HeldException>(take_exception()));
}

void drop_exception(PyObject* expected) {
    if (PyErr_ExceptionMatches(expected) == 0) {
        throw PythonError{};
    }
    PyErr_Clear();
}

RaisedException::~RaisedException() {
    Py_XDECREF(type_);
    Py_XDECREF(value_);
    Py_XDECREF(traceback_);
}

void RaisedException::raise_again() const noexcept {
    Py_XINCREF(type_);
    Py_XINCREF(value_);
    Py_XINCREF(traceback_);
    PyErr_Restore(type_, value_, traceback_);
}

void raise_in_python(State& state) noexcept {
    raise_in_python_as(state, state.automation_error.get());
}

void raise_no_attribute(State& state) noexcept {
    raise_in_python_as(state, state.no_such_member.get());
}

}  // namespace cvdeveloper::python
