#pragma once

#include "cvdeveloper/automation/date.h"
#include "owned.h"

namespace cvdeveloper::python {

// Once, before any other function here.
void import_datetime();

bool is_date(PyObject* object) noexcept;        // datetime.date or datetime.datetime
bool has_time_zone(PyObject* object) noexcept;  // automation dates are local time and have none
Date date_of_python(PyObject* object) noexcept;

// Rounded to the microsecond, and to the second where that is no farther. Error 6 outside the years
// 1 to 9999.
Owned date_to_python(Date date);

}  // namespace cvdeveloper::python
