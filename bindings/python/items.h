#pragma once

#include <vector>

#include "cvdeveloper/automation/library_object.h"
#include "state.h"

// What Python writers expect of a record set and of a collection besides their members.
namespace cvdeveloper::python {

// rs["Name"], rs("Name"), for row in rs; fields["Name"], fields("Name") where the class has Item.
// Nothing for other classes.
void add_item_slots(LibraryObject& sample, std::vector<PyType_Slot>& slots);

// Module functions that the iteration over rows is built from: the fields' names, and the values of
// the current row, None at the end.
PyObject* field_names(PyObject* module, PyObject* record_set);
PyObject* current_row(PyObject* module, PyObject* record_set);

}  // namespace cvdeveloper::python
