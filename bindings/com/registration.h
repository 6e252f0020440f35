#pragma once

#include <windows.h>

namespace cvdeveloper::com {

enum class Scope { Machine, User };

// Make the module's classes and its type library known to the system, or forget them. A failed
// registration leaves nothing behind.
HRESULT register_classes(Scope scope) noexcept;
HRESULT unregister_classes(Scope scope) noexcept;

}  // namespace cvdeveloper::com
