#include "registry.h"

#include <array>
#include <string>
#include <utility>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "errors.h"
#include "host/folder/create_folder.h"
#include "host/register.h"
#include "host/session/application.h"
#include "library_types.h"
#include "python_object.h"
#include "texts.h"
#include "values.h"

namespace cvdeveloper::python {

namespace {

std::string_view text_of(PyObject* argument, std::string_view what) {
    const auto text = PyUnicode_Check(argument) ? view_of_python(argument) : std::nullopt;
    if (!text) {
        raise(RuntimeError::TypeMismatch, what);
    }
    return *text;
}

std::string_view class_name_of(PyObject* name) {
    return text_of(name, "Klassenname");
}

// Borrowed from the call.
std::pair<PyObject*, PyObject*> two_arguments(PyObject* arguments, PyObject* keywords,
                                              const char* format,
                                              std::pair<std::string, std::string> names) {
    std::array<char*, 3> list{names.first.data(), names.second.data(), nullptr};
    PyObject* first = nullptr;
    PyObject* second = nullptr;
    if (PyArg_ParseTupleAndKeywords(arguments, keywords, format, list.data(), &first, &second) ==
        0) {
        throw PythonError{};
    }
    return {first, second};
}

Ref<PythonObject> callable(State& state, PyObject* object) {
    if (PyCallable_Check(object) == 0) {
        raise(RuntimeError::TypeMismatch, "erwartet wird etwas Aufrufbares");
    }
    return make_object<PythonObject>(state.shared_from_this(), object);
}

PyObject* register_class_from_python(PyObject* module, PyObject* arguments, PyObject* keywords) {
    State& state = state_of(module);
    return guarded(state, [&] {
        const auto [name, factory] =
            two_arguments(arguments, keywords, "OO:register_class", {"progid", "factory"});
        if (factory == Py_None) {
            register_class(class_name_of(name), {});
        } else {
            register_class(class_name_of(name), [made_by = callable(state, factory)] {
                return to_object(made_by->call_itself({}));
            });
        }
        return Owned::borrow(Py_None);
    });
}

PyObject* register_active_object_from_python(PyObject* module, PyObject* arguments,
                                             PyObject* keywords) {
    State& state = state_of(module);
    return guarded(state, [&] {
        const auto [name, object] =
            two_arguments(arguments, keywords, "OO:register_active_object", {"progid", "obj"});
        try {
            register_active_object(class_name_of(name), object_of_python(state, object));
        } catch (const NoSuchValue& failure) {
            raise(failure.error, "register_active_object");
        }
        return Owned::borrow(Py_None);
    });
}

PyObject* reset_registry(PyObject* module, PyObject*) {
    return guarded(state_of(module), [] {
        clear_registry();
        register_own_classes();
        return Owned::borrow(Py_None);
    });
}

PyObject* set_message_handler_from_python(PyObject* module, PyObject* handler) {
    State& state = state_of(module);
    return guarded(state, [&] {
        if (handler == Py_None) {
            set_message_handler({});
        } else {
            set_message_handler([shown_by = callable(state, handler)](std::string_view text) {
                Variant message(text);
                shown_by->call_itself({.values = {&message, 1}});
            });
        }
        return Owned::borrow(Py_None);
    });
}

// Calls the function and gives back the messages that it would have shown. Where the last one is
// the text given, the error that it hides is raised instead.
PyObject* messages_of(PyObject* module, PyObject* arguments) {
    return guarded(state_of(module), [&] {
        PyObject* function = nullptr;
        const char* hiding = nullptr;
        if (PyArg_ParseTuple(arguments, "Os:_messages_of", &function, &hiding) == 0) {
            throw PythonError{};
        }
        const MessageCapture capture;
        const Owned result = checked(PyObject_CallNoArgs(function));
        if (capture.cause() && capture.messages().back() == hiding) {
            std::rethrow_exception(capture.cause());
        }
        Owned list = checked(PyList_New(0));
        for (const std::string& message : capture.messages()) {
            check(PyList_Append(list.get(), text_to_python(message).get()));
        }
        return list;
    });
}

PyObject* create_host_folder(PyObject* module, PyObject* arguments) {
    return guarded(state_of(module), [&] {
        PyObject* folder = nullptr;
        int sample = 0;
        PyObject* user = nullptr;
        PyObject* password = nullptr;
        if (PyArg_ParseTuple(arguments, "OpOO:create", &folder, &sample, &user, &password) == 0) {
            throw PythonError{};
        }
        standalone::create_folder(
            text_of(folder, "create, Argument folder"),
            {.sample = sample != 0,
             .user = std::string(text_of(user, "create, Argument user")),
             .password = std::string(text_of(password, "create, Argument password"))});
        return Owned::borrow(Py_None);
    });
}

PyObject* start_host_application(PyObject* module, PyObject* arguments) {
    State& state = state_of(module);
    return guarded(state, [&] {
        const char* folder = nullptr;
        const char* user = nullptr;
        const char* password = nullptr;
        if (PyArg_ParseTuple(arguments, "sss:start", &folder, &user, &password) == 0) {
            throw PythonError{};
        }
        return object_to_python(state, standalone::start_application(folder, user, password));
    });
}

// The interpreter casts it back by the flags that stand beside it.
PyCFunction as_function(PyCFunctionWithKeywords function) noexcept {
    return reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(function));
}

// At the interpreter's exit: what the registry keeps must not outlive it.
PyObject* let_go_of_everything(PyObject* module, PyObject*) {
    return guarded(state_of(module), [] {
        clear_registry();
        set_message_handler({});
        return Owned::borrow(Py_None);
    });
}

}  // namespace

PyMethodDef registry_functions[] = {
    {"register_class", as_function(register_class_from_python), METH_VARARGS | METH_KEYWORDS,
     "register_class(progid, factory)\n--\n\n"
     "Has factory() called whenever the library creates an object of that class name; None takes "
     "the class out. Names without regard to case."},
    {"register_active_object", as_function(register_active_object_from_python),
     METH_VARARGS | METH_KEYWORDS,
     "register_active_object(progid, obj)\n--\n\n"
     "Makes obj what the library finds as the running object of that class name; None takes it "
     "out."},
    {"reset_registry", reset_registry, METH_NOARGS,
     "reset_registry()\n--\n\n"
     "Back to what importing the module registered: its classes and no running object."},
    {"set_message_handler", set_message_handler_from_python, METH_O,
     "set_message_handler(handler)\n--\n\n"
     "Has handler(text) called for each message box; None restores standard error."},
    {"_create_host_folder", create_host_folder, METH_VARARGS, nullptr},
    {"_start_host_application", start_host_application, METH_VARARGS, nullptr},
    {"_messages_of", messages_of, METH_VARARGS, nullptr},
    {"_let_go_of_everything", let_go_of_everything, METH_NOARGS, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

void register_own_classes() {
    standalone::register_standalone_host();
}

}  // namespace cvdeveloper::python
