#pragma once

#include <windows.h>

#include <oleauto.h>

#include "cvdeveloper/automation/object.h"

// The system's objects that stand for the library's, and the library's that stand for the system's.
// An object that travels twice is the same object each time, while somebody holds it; what came in
// goes out as it came.
namespace cvdeveloper::com {

// The caller's to release; nullptr for nothing.
IDispatch* dispatch_of(const ObjectRef& object);

// Errors: 13 for an object that has no automation interface.
ObjectRef object_of(IUnknown* object);

// Objects of the library that somebody outside holds.
std::size_t objects_in_use() noexcept;

}  // namespace cvdeveloper::com
