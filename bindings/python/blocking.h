#pragma once

namespace cvdeveloper::python {

// Has the library give up the interpreter lock while it waits, and end a wait on Ctrl-C.
void install_blocking_hook();

}  // namespace cvdeveloper::python
