#include "python_object.h"

#include <string>
#include <vector>

#include "cvdeveloper/automation/runtime_errors.h"
#include "errors.h"
#include "gil.h"
#include "host_call.h"
#include "instances.h"
#include "texts.h"
#include "values.h"

namespace cvdeveloper::python {

namespace {

// The object's own names, or nothing where it cannot tell them.
std::vector<std::string> names_of(PyObject* object) {
    std::vector<std::string> names;
    const Owned list = Owned::steal(PyObject_Dir(object));
    if (!list) {
        drop_exception();
        return names;
    }
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(list.get()); ++i) {
        PyObject* name = PyList_GET_ITEM(list.get(), i);
        if (PyUnicode_Check(name)) {
            names.push_back(text_of_python(name).value_or(std::string()));
        }
    }
    return names;
}

std::string lower(std::string_view name) {
    const Owned text = text_to_python(name);
    const Owned lowered = checked(PyObject_CallMethod(text.get(), "lower", nullptr));
    return text_of_python(lowered.get()).value_or(std::string());
}

// The name among the object's own that is spelt so but for case; "" where there is none.
std::string spelling_of(const std::vector<std::string>& names, std::string_view member) {
    const std::string wanted = lower(member);
    for (const std::string& name : names) {
        if (lower(name) == wanted) {
            return name;
        }
    }
    return {};
}

[[noreturn]] void raise_missing(std::string_view class_name, std::string_view member,
                                const std::vector<std::string>& names) {
    std::vector<std::string_view> shown;
    for (const std::string& name : names) {
        if (!name.starts_with('_')) {
            shown.push_back(name);
        }
    }
    raise_no_such_member(class_name, member, shown);
}

// Whether the class or the instance's own dictionary has the name; runs no code of the object.
bool has_name(PyObject* object, PyObject* name) {
    auto* type = reinterpret_cast<PyObject*>(Py_TYPE(object));
    if (Owned::steal(PyObject_GetAttr(type, name))) {
        return true;
    }
    drop_exception();
    const Owned own = Owned::steal(PyObject_GenericGetDict(object, nullptr));
    if (!own) {
        drop_exception();
        return false;
    }
    return PyDict_Contains(own.get(), name) == 1;
}

// Whether the object takes names that neither it nor its class has yet.
bool takes_any_name(PyObject* object) noexcept {
    return Py_TYPE(object)->tp_setattro != PyObject_GenericSetAttr;
}

}  // namespace

PythonObject::PythonObject(std::shared_ptr<State> state, PyObject* object)
    : state_(std::move(state)), object_(object) {
    Py_INCREF(object_);
}

PythonObject::~PythonObject() {
    give_back(object_);
}

std::string_view PythonObject::class_name() const noexcept {
    return Py_TYPE(object_)->tp_name;
}

Variant PythonObject::invoke(std::string_view member, InvokeKind kind, Arguments arguments) {
    const InterpreterLock lock;
    try {
        if (kind == InvokeKind::Put) {
            put(member, arguments);
            return {};
        }
        return read_or_call(member, arguments);
    } catch (const PythonError&) {
        throw_python_exception(*state_);
    }
}

Variant PythonObject::call_itself(Arguments arguments) {
    const InterpreterLock lock;
    try {
        return HostCall(*state_, arguments).run(object_);
    } catch (const PythonError&) {
        throw_python_exception(*state_);
    }
}

Owned PythonObject::find(std::string_view member) const {
    const Owned name = name_to_python(member);
    if (Owned found = Owned::steal(PyObject_GetAttr(object_, name.get()))) {
        return found;
    }
    if (PyErr_ExceptionMatches(PyExc_AttributeError) == 0) {
        throw PythonError{};
    }
    // Either there is no such member, or the code behind it has raised this.
    const RaisedException raised;
    if (has_name(object_, name.get())) {
        raised.raise_again();
        throw PythonError{};
    }
    const std::vector<std::string> names = names_of(object_);
    const std::string spelling = spelling_of(names, member);
    if (spelling.empty()) {
        raise_missing(class_name(), member, names);
    }
    return checked(PyObject_GetAttr(object_, name_to_python(spelling).get()));
}

Variant PythonObject::read_or_call(std::string_view member, Arguments arguments) {
    const Owned found = find(member);
    // A record set of the library's can be called, rs("Name"), and is a value all the same.
    if (PyCallable_Check(found.get()) != 0 && !is_instance(found.get())) {
        return HostCall(*state_, arguments).run(found.get());
    }
    if (arguments.values.empty()) {
        return host_result(*state_, found.get());
    }
    if (PyMapping_Check(found.get()) == 0) {
        raise(RuntimeError::WrongArgumentCount,
              std::string(class_name()) + "." + std::string(member));
    }
    return HostCall(*state_, arguments).index(found.get());
}

Owned PythonObject::spelling_to_write(std::string_view member) const {
    Owned name = name_to_python(member);
    if (has_name(object_, name.get())) {
        return name;
    }
    const std::vector<std::string> names = names_of(object_);
    const std::string spelling = spelling_of(names, member);
    if (spelling.empty()) {
        if (!takes_any_name(object_)) {
            raise_missing(class_name(), member, names);
        }
        return name;
    }
    return name_to_python(spelling);
}

void PythonObject::put(std::string_view member, Arguments arguments) {
    const std::size_t indexes = arguments.values.size() - 1;
    const Owned value = value_to_python(*state_, arguments.values[indexes]);
    if (indexes == 0) {
        check(PyObject_SetAttr(object_, spelling_to_write(member).get(), value.get()));
        return;
    }
    const Owned found = find(member);
    const HostCall call(*state_, {.values = arguments.values.first(indexes)});
    check(PyObject_SetItem(found.get(), call.key().get(), value.get()));
}

}  // namespace cvdeveloper::python
