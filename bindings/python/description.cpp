#include "description.h"

#include <cmath>

#include "cvdeveloper/enumerations.h"
#include "texts.h"
#include "values.h"

namespace cvdeveloper::python {

namespace {

// A dictionary written down entry by entry.
class Entries {
  public:
    Entries() : dictionary_(checked(PyDict_New())) {}
    Entries& add(const char* name, const Owned& value) {
        check(PyDict_SetItemString(dictionary_.get(), name, value.get()));
        return *this;
    }
    Entries& add(const char* name, std::string_view text) {
        return add(name, text_to_python(text));
    }
    Entries& add(const char* name, bool flag) {
        return add(name, Owned::borrow(flag ? Py_True : Py_False));
    }
    Entries& add(const char* name, long number) {
        return add(name, checked(PyLong_FromLong(number)));
    }
    [[nodiscard]] const Owned& get() const noexcept { return dictionary_; }

  private:
    Owned dictionary_;
};

template <class Range, class Describe>
Owned list_of(const Range& range, const Describe& describe) {
    Owned list = checked(PyList_New(0));
    for (const auto& item : range) {
        check(PyList_Append(list.get(), describe(item).get()));
    }
    return list;
}

std::string_view name_of(ValueType type) noexcept {
    switch (type) {
        case ValueType::Nothing:
            return "nothing";
        case ValueType::String:
            return "string";
        case ValueType::Boolean:
            return "boolean";
        case ValueType::Int16:
            return "int16";
        case ValueType::Int32:
            return "int32";
        case ValueType::Double:
            return "double";
        case ValueType::Date:
            return "date";
        case ValueType::Variant:
            return "variant";
        case ValueType::Object:
            return "object";
        case ValueType::RecordSet:
            return "record set";
        case ValueType::Enumeration:
            return "enumeration";
    }
    return "variant";
}

std::string_view name_of(OperationKind kind) noexcept {
    switch (kind) {
        case OperationKind::Method:
            return "method";
        case OperationKind::Get:
            return "get";
        case OperationKind::Put:
            return "put";
    }
    return "method";
}

// Days, where a date is the default: they are taken for a date, and a 0 stays readable.
Owned default_of(State& state, const Default& value) {
    if (const auto* date = value.get_if<Date>()) {
        return std::trunc(date->days) == date->days ? checked(PyLong_FromDouble(date->days))
                                                    : checked(PyFloat_FromDouble(date->days));
    }
    if (value.get_if<Missing>() != nullptr) {
        return Owned::borrow(Py_Ellipsis);
    }
    return value_to_python(state, value.value());
}

Owned describe_parameter(State& state, const Operation& operation, std::size_t index) {
    const Parameter& parameter = operation.parameters[index];
    const TypeName& type = operation.binding.parameter_types[index];
    Entries entries;
    entries.add("name", parameter.name)
        .add("type", name_of(type.type))
        .add("type_name", type.name)
        .add("in_out", parameter.direction == Direction::InOut)
        .add("required", parameter.default_value.required())
        .add("help", parameter.help);
    if (!parameter.default_value.required()) {
        entries.add("default", default_of(state, parameter.default_value));
    }
    return entries.get();
}

}  // namespace

Owned describe_operation(State& state, const Operation& operation) {
    Owned parameters = checked(PyList_New(0));
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        check(PyList_Append(parameters.get(), describe_parameter(state, operation, i).get()));
    }
    return Entries()
        .add("name", operation.name)
        .add("id", static_cast<long>(operation.id))
        .add("kind", name_of(operation.kind))
        .add("parameters", parameters)
        .add("result", name_of(operation.binding.result.type))
        .add("result_name", operation.binding.result.name)
        .add("what", operation.help.what)
        .add("gives", operation.help.result)
        .add("errors", operation.help.errors)
        .add("tables", operation.help.tables)
        .add("example", operation.help.example)
        .get();
}

Owned describe_class(State& state, const InterfaceTable& table, bool creatable) {
    const Owned topics = list_of(table.topics(), [&](const TopicRows& topic) {
        const Owned operations = list_of(topic.operations, [&](const Operation& operation) {
            return describe_operation(state, operation);
        });
        return Entries()
            .add("name", topic.name)
            .add("help", topic.help)
            .add("operations", operations)
            .get();
    });
    return Entries()
        .add("name", table.class_name())
        .add("help", table.help())
        .add("creatable", creatable)
        .add("topics", topics)
        .get();
}

Owned describe_enumerations() {
    return list_of(enumerations(), [](const Enumeration& enumeration) {
        const Owned members = list_of(enumeration.members, [](const EnumerationMember& member) {
            return checked(Py_BuildValue("(Oi)", text_to_python(member.name).get(), member.value));
        });
        return Entries().add("name", enumeration.name).add("members", members).get();
    });
}

}  // namespace cvdeveloper::python
