#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "owned.h"

namespace cvdeveloper::python {

// The text as a Python string; what is no valid UTF-8 is shown by replacement characters.
Owned text_to_python(std::string_view text);
// The same for names, which are looked up again and again.
Owned name_to_python(std::string_view name);

// The view lasts as long as the object. Nothing for half a surrogate pair, which is no text.
std::optional<std::string_view> view_of_python(PyObject* text) noexcept;
std::optional<std::string> text_of_python(PyObject* text);

}  // namespace cvdeveloper::python
