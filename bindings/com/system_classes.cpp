#include "system_classes.h"

#include <windows.h>

#include <oleauto.h>

#include "cvdeveloper/automation/class_registry.h"
#include "instances.h"
#include "interface.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::com {

namespace {

ObjectRef create(std::string_view class_name) {
    CLSID id{};
    Interface<IDispatch> made;
    if (FAILED(CLSIDFromProgID(to_utf16(class_name).c_str(), &id)) ||
        FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                IID_IDispatch, made.receive()))) {
        return nullptr;
    }
    return object_of(made.get());
}

ObjectRef active(std::string_view class_name) {
    CLSID id{};
    Interface<IUnknown> running;
    if (FAILED(CLSIDFromProgID(to_utf16(class_name).c_str(), &id)) ||
        FAILED(GetActiveObject(id, nullptr, running.address()))) {
        return nullptr;
    }
    return object_of(running.get());
}

}  // namespace

void use_system_classes() {
    set_system_classes({.create = create, .active = active});
}

}  // namespace cvdeveloper::com
