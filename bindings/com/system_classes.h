#pragma once

namespace cvdeveloper::com {

// Lets the library find the system's classes and running objects by their names.
void use_system_classes();

}  // namespace cvdeveloper::com
