#pragma once

#include <Python.h>

namespace cvdeveloper::python {

// Module functions for hosts and tests.
extern PyMethodDef registry_functions[];

// What importing the module registers: the stand-alone host's classes.
void register_own_classes();

}  // namespace cvdeveloper::python
