#include "values.h"

#include <cstring>
#include <limits>

#include "dates.h"
#include "errors.h"
#include "instances.h"
#include "python_object.h"
#include "texts.h"

namespace cvdeveloper::python {

namespace {

Variant integer_of_python(PyObject* object) {
    int overflow = 0;
    const long long number = PyLong_AsLongLongAndOverflow(object, &overflow);
    if (overflow == 0 && number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max()) {
        return static_cast<std::int32_t>(number);
    }
    const double wide = PyLong_AsDouble(object);
    if (PyErr_Occurred() != nullptr) {
        PyErr_Clear();
        throw NoSuchValue{RuntimeError::Overflow, {}};
    }
    return wide;
}

Variant text_value(PyObject* object) {
    if (const auto text = view_of_python(object)) {
        return *text;
    }
    throw NoSuchValue{RuntimeError::TypeMismatch, "kein gültiger Text"};
}

Variant bytes_value(const char* data, Py_ssize_t size) {
    Bytes bytes(static_cast<std::size_t>(size));
    if (size > 0) {
        std::memcpy(bytes.data(), data, bytes.size());
    }
    return bytes;
}

Owned bytes_to_python(const Bytes& bytes) {
    return checked(PyBytes_FromStringAndSize(reinterpret_cast<const char*>(bytes.data()),
                                             static_cast<Py_ssize_t>(bytes.size())));
}

}  // namespace

Variant value_of_python(State& state, PyObject* object) {
    if (PyUnicode_Check(object)) {
        return text_value(object);
    }
    if (object == Py_None) {
        return Null{};
    }
    if (PyBool_Check(object)) {  // before the integers, of which it is one
        return object == Py_True;
    }
    if (PyLong_Check(object)) {
        return integer_of_python(object);
    }
    if (PyFloat_Check(object)) {
        return PyFloat_AS_DOUBLE(object);
    }
    if (is_date(object)) {
        if (has_time_zone(object)) {
            throw NoSuchValue{RuntimeError::TypeMismatch, "ein Zeitpunkt mit Zeitzone"};
        }
        return date_of_python(object);
    }
    if (PyBytes_Check(object)) {
        return bytes_value(PyBytes_AS_STRING(object), PyBytes_GET_SIZE(object));
    }
    if (PyByteArray_Check(object)) {
        return bytes_value(PyByteArray_AS_STRING(object), PyByteArray_GET_SIZE(object));
    }
    if (object == state.empty.get()) {
        return Empty{};
    }
    return wrapped(state, object);
}

ObjectRef object_of_python(State& state, PyObject* object) {
    const Variant value = value_of_python(state, object);
    if (const auto* held = value.get_if<ObjectRef>()) {
        return *held;
    }
    if (value.is<Null>() || value.is<Empty>()) {
        return nullptr;
    }
    throw NoSuchValue{RuntimeError::TypeMismatch, {}};
}

Owned object_to_python(State& state, const ObjectRef& object) {
    return object ? instance_for(state, object) : Owned::borrow(Py_None);
}

Owned value_to_python(State& state, const Variant& value) {
    switch (value.type()) {
        case VariantType::Empty:
        case VariantType::Missing:
            return state.empty;
        case VariantType::Null:
            return Owned::borrow(Py_None);
        case VariantType::Boolean:
            return Owned::borrow(value.get<bool>() ? Py_True : Py_False);
        case VariantType::Int16:
            return checked(PyLong_FromLong(value.get<std::int16_t>()));
        case VariantType::Int32:
            return checked(PyLong_FromLong(value.get<std::int32_t>()));
        case VariantType::Double:
            return checked(PyFloat_FromDouble(value.get<double>()));
        case VariantType::Date:
            return date_to_python(value.get<Date>());
        case VariantType::String:
            return text_to_python(value.get<std::string>());
        case VariantType::ByteArray:
            return bytes_to_python(value.get<Bytes>());
        case VariantType::Object:
            return object_to_python(state, value.get<ObjectRef>());
    }
    return state.empty;
}

Owned value_to_python(State& state, const Variant& value, const TypeName& type) {
    Owned plain =
        type.type == ValueType::Nothing ? Owned::borrow(Py_None) : value_to_python(state, value);
    if (type.type == ValueType::Enumeration) {
        if (const auto found = state.enumerations.find(type.name);
            found != state.enumerations.end()) {
            if (Owned member =
                    Owned::steal(PyObject_CallOneArg(found->second.get(), plain.get()))) {
                return member;
            }
            // A number that the enumeration does not name stays a number.
            drop_exception(PyExc_ValueError);
        }
    }
    return plain;
}

}  // namespace cvdeveloper::python
