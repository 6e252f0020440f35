#pragma once

#include <windows.h>

#include <cstdint>
#include <span>
#include <string_view>

#include "class_ids.h"
#include "cvdeveloper/automation/object.h"

// What makes a server of the generic code: each server's module defines it once.
namespace cvdeveloper::com {

struct CreatableClass {
    std::string_view class_name;  // "CVDeveloper.Application"
    const ClassIds* ids;
    ObjectRef (*create)();
};

struct Module {
    std::span<const CreatableClass> creatable;
    bool has_type_library;        // that of library_ids, compiled into the module
    std::int32_t first_position;  // of the items of its collections
    void (*start)();              // before the first object is made
};

extern const Module this_module;

// The module's own handle, from when it was loaded.
HINSTANCE module_handle() noexcept;

}  // namespace cvdeveloper::com
