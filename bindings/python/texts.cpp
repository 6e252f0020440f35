#include "texts.h"

namespace cvdeveloper::python {

Owned text_to_python(std::string_view text) {
    return checked(
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace"));
}

Owned name_to_python(std::string_view name) {
    PyObject* text = text_to_python(name).release();
    PyUnicode_InternInPlace(&text);
    return Owned::steal(text);
}

std::optional<std::string_view> view_of_python(PyObject* text) noexcept {
    Py_ssize_t size = 0;
    const char* data = PyUnicode_AsUTF8AndSize(text, &size);
    if (data == nullptr) {
        PyErr_Clear();
        return std::nullopt;
    }
    return std::string_view(data, static_cast<std::size_t>(size));
}

std::optional<std::string> text_of_python(PyObject* text) {
    const auto view = view_of_python(text);
    return view ? std::optional<std::string>(*view) : std::nullopt;
}

}  // namespace cvdeveloper::python
