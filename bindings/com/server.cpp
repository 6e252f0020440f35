#include <windows.h>

#include <olectl.h>

#include <cwchar>
#include <mutex>

#include "class_factory.h"
#include "instances.h"
#include "module.h"
#include "registration.h"
#include "system_classes.h"

// What the system calls of a server's module. Loading it does nothing.
namespace cvdeveloper::com {

namespace {

HINSTANCE handle = nullptr;

}  // namespace

HINSTANCE module_handle() noexcept {
    return handle;
}

}  // namespace cvdeveloper::com

using cvdeveloper::com::ClassFactory;
using cvdeveloper::com::objects_in_use;
using cvdeveloper::com::register_classes;
using cvdeveloper::com::Scope;
using cvdeveloper::com::this_module;
using cvdeveloper::com::unregister_classes;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        cvdeveloper::com::handle = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID class_id, REFIID interface_id, void** target) {
    if (target == nullptr) {
        return E_POINTER;
    }
    *target = nullptr;
    try {
        static std::once_flag once;
        std::call_once(once, this_module.start);
        ClassFactory* factory = ClassFactory::find(class_id);
        return factory == nullptr ? CLASS_E_CLASSNOTAVAILABLE
                                  : factory->QueryInterface(interface_id, target);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

STDAPI DllCanUnloadNow() {
    return ClassFactory::any_in_use() || objects_in_use() != 0 ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
    return register_classes(Scope::Machine);
}

STDAPI DllUnregisterServer() {
    return unregister_classes(Scope::Machine);
}

// "regsvr32 /n /i:user CVDeveloper.dll" needs no administrator.
STDAPI DllInstall(BOOL install, const wchar_t* command) {
    const bool empty = command == nullptr || *command == L'\0';
    if (!empty && _wcsicmp(command, L"user") != 0) {
        return E_INVALIDARG;
    }
    const Scope scope = empty ? Scope::Machine : Scope::User;
    return install ? register_classes(scope) : unregister_classes(scope);
}
