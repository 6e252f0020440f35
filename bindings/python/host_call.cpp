#include "host_call.h"

#include <string>

#include "cvdeveloper/automation/runtime_errors.h"
#include "texts.h"
#include "values.h"

namespace cvdeveloper::python {

Variant host_result(State& state, PyObject* result) {
    try {
        return value_of_python(state, result);
    } catch (const NoSuchValue& failure) {
        raise(failure.error, failure.why);
    }
}

HostCall::HostCall(State& state, Arguments arguments) : state_(state), arguments_(arguments) {
    const std::size_t count = arguments.values.size();
    handed_.reserve(count);
    contents_.resize(arguments.by_reference != 0 ? count : 0);
    for (std::size_t i = 0; i < count; ++i) {
        Owned value = value_to_python(state, arguments.values[i]);
        if (arguments.is_by_reference(i)) {
            contents_[i] = value;
            value = checked(PyObject_CallOneArg(state.ref.get(), value.get()));
        }
        handed_.push_back(std::move(value));
    }
    if (!arguments.names.empty()) {
        names_ = checked(PyTuple_New(static_cast<Py_ssize_t>(arguments.names.size())));
        Py_ssize_t place = 0;
        for (const std::string_view name : arguments.names) {
            PyTuple_SET_ITEM(names_.get(), place++, name_to_python(name).release());
        }
    }
}

Variant HostCall::run(PyObject* callable) {
    std::vector<PyObject*> passed;
    passed.reserve(handed_.size());
    for (const Owned& value : handed_) {
        passed.push_back(value.get());
    }
    const std::size_t positional = handed_.size() - arguments_.names.size();
    const Owned result =
        checked(PyObject_Vectorcall(callable, passed.data(), positional, names_.get()));
    take_back();
    return host_result(state_, result.get());
}

Variant HostCall::index(PyObject* container) {
    const Owned item = checked(PyObject_GetItem(container, key().get()));
    return host_result(state_, item.get());
}

Owned HostCall::key() const {
    if (handed_.size() == 1) {
        return handed_.front();
    }
    Owned tuple = checked(PyTuple_New(static_cast<Py_ssize_t>(handed_.size())));
    for (std::size_t i = 0; i < handed_.size(); ++i) {
        PyTuple_SET_ITEM(tuple.get(), static_cast<Py_ssize_t>(i), Owned(handed_[i]).release());
    }
    return tuple;
}

void HostCall::take_back() {
    for (std::size_t i = 0; i < contents_.size(); ++i) {
        if (!contents_[i]) {
            continue;
        }
        const Owned left = checked(PyObject_GetAttr(handed_[i].get(), state_.value_name.get()));
        // An object that was left alone stays the very object it was on the library's side too.
        if (left.get() != contents_[i].get()) {
            arguments_.values[i] = host_result(state_, left.get());
        }
    }
}

}  // namespace cvdeveloper::python
