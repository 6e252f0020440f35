#include "call.h"

#include <memory>
#include <string>

#include "cvdeveloper/automation/binding.h"
#include "texts.h"
#include "values.h"

namespace cvdeveloper::python {

namespace {

std::size_t count_of(const Operation& operation) noexcept {
    return operation.parameters.size();
}

Owned content_of(State& state, PyObject* reference) {
    return checked(PyObject_GetAttr(reference, state.value_name.get()));
}

}  // namespace

ParameterNames parameter_names(const Operation& operation) {
    ParameterNames names;
    names.reserve(count_of(operation));
    for (const Parameter& parameter : operation.parameters) {
        names.push_back(name_to_python(parameter.name));
    }
    return names;
}

Call::Call(State& state, const Operation& operation) : state_(state), operation_(operation) {
    std::uninitialized_fill_n(slots(), count_of(operation), Variant(Missing{}));
}

Call::~Call() {
    std::destroy_n(slots(), count_of(operation_));
}

void Call::place_at(std::size_t index, PyObject* value) {
    if (value == Py_Ellipsis) {  // left out
        return;
    }
    Owned content;
    if (PyObject_TypeCheck(value, state_.ref.type())) {
        references_ |= 1U << index;
        references_to_[index] = value;
        content = content_of(state_, value);
        value = content.get();
    }
    try {
        slots()[index] = value_of_python(state_, value);
    } catch (const NoSuchValue& failure) {
        std::string place = binding::describe({operation_, index});
        if (!failure.why.empty()) {
            place.append(", ").append(failure.why);
        }
        raise(failure.error, place);
    }
}

std::size_t Call::place_of(PyObject* keyword, const ParameterNames& names) const {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].get() == keyword) {
            return i;
        }
    }
    return place_of_argument(operation_, view_of_python(keyword).value_or(std::string_view()));
}

void Call::place(PyObject* const* values, std::size_t positional, PyObject* keywords,
                 const ParameterNames& names) {
    const auto named =
        keywords == nullptr ? 0 : static_cast<std::size_t>(PyTuple_GET_SIZE(keywords));
    if (positional + named > count_of(operation_)) {
        raise_too_many_arguments(operation_, positional + named);
    }
    for (std::size_t i = 0; i < positional; ++i) {
        place_at(i, values[i]);
    }
    std::uint32_t taken = 0;
    for (std::size_t i = 0; i < named; ++i) {
        PyObject* keyword = PyTuple_GET_ITEM(keywords, static_cast<Py_ssize_t>(i));
        const std::size_t place = place_of(keyword, names);
        if (place < positional || ((taken >> place) & 1U) != 0) {
            raise_given_twice(operation_, view_of_python(keyword).value_or(std::string_view()));
        }
        taken |= 1U << place;
        place_at(place, values[positional + i]);
    }
}

Owned Call::run(Object& object) {
    const Variant result = static_cast<LibraryObject&>(object).run(operation_, slots());
    if (const std::uint32_t written = references_ & operation_.binding.writes; written != 0) {
        for (std::size_t i = 0; i < count_of(operation_); ++i) {
            if (((written >> i) & 1U) != 0) {
                const Owned left = value_to_python(state_, slots()[i]);
                check(PyObject_SetAttr(references_to_[i], state_.value_name.get(), left.get()));
            }
        }
    }
    return value_to_python(state_, result, operation_.binding.result);
}

}  // namespace cvdeveloper::python
