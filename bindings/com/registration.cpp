#include "registration.h"

#include <oleauto.h>
#include <olectl.h>

#include <new>
#include <string>

#include "identifiers.h"
#include "interface.h"
#include "module.h"
#include "platform/windows/utf16.h"
#include "type_library.h"

// The cross compiler's library has these, its headers do not.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* help_folder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID library, WORD major, WORD minor, LCID locale,
                                        SYSKIND system);
}

namespace cvdeveloper::com {

namespace {

struct Failure {
    HRESULT status;
};

void check(HRESULT status) {
    if (FAILED(status)) {
        throw Failure{status};
    }
}

// The part of the registry that class names are looked up in, for everybody or for one user.
class Classes {
  public:
    explicit Classes(Scope scope) {
        const HKEY root = scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
        check(HRESULT_FROM_WIN32(static_cast<DWORD>(
            RegCreateKeyExW(root, L"Software\\Classes", 0, nullptr, REG_OPTION_NON_VOLATILE,
                            KEY_ALL_ACCESS, nullptr, &key_, nullptr))));
    }
    Classes(const Classes&) = delete;
    Classes& operator=(const Classes&) = delete;
    ~Classes() { RegCloseKey(key_); }

    // An empty name is the key's default value.
    void set(const std::wstring& key, const std::wstring& name, const std::wstring& value) const {
        const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
        check(HRESULT_FROM_WIN32(static_cast<DWORD>(
            RegSetKeyValueW(key_, key.c_str(), name.empty() ? nullptr : name.c_str(), REG_SZ,
                            value.c_str(), size))));
    }
    // A key that is not there is removed already.
    void remove(const std::wstring& key) const {
        const LSTATUS status = RegDeleteTreeW(key_, key.c_str());
        if (status != ERROR_FILE_NOT_FOUND && status != ERROR_PATH_NOT_FOUND) {
            check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
        }
    }

  private:
    HKEY key_ = nullptr;
};

std::wstring plain_name(const CreatableClass& creatable) {
    return to_utf16(creatable.class_name);
}

std::wstring versioned_name(const CreatableClass& creatable) {
    return plain_name(creatable) + L".1";
}

std::wstring class_key(const CreatableClass& creatable) {
    return L"CLSID\\" + braced(creatable.ids->class_id);
}

void add(const Classes& classes, const CreatableClass& creatable) {
    const std::wstring id = braced(creatable.ids->class_id);
    const std::wstring description = plain_name(creatable);
    for (const std::wstring& name : {plain_name(creatable), versioned_name(creatable)}) {
        classes.set(name, L"", description);
        classes.set(name + L"\\CLSID", L"", id);
    }
    classes.set(plain_name(creatable) + L"\\CurVer", L"", versioned_name(creatable));

    const std::wstring key = class_key(creatable);
    classes.set(key, L"", description);
    classes.set(key + L"\\InprocServer32", L"", module_path());
    classes.set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    classes.set(key + L"\\ProgID", L"", versioned_name(creatable));
    classes.set(key + L"\\VersionIndependentProgID", L"", plain_name(creatable));
    classes.set(key + L"\\Programmable", L"", L"");
    if (this_module.has_type_library) {
        classes.set(key + L"\\TypeLib", L"", braced(library_ids.library_id));
        classes.set(key + L"\\Version", L"", to_utf16(library_ids.version));
    }
}

void remove(const Classes& classes, const CreatableClass& creatable) {
    classes.remove(plain_name(creatable));
    classes.remove(versioned_name(creatable));
    classes.remove(class_key(creatable));
}

void add_type_library(Scope scope) {
    Interface<ITypeLib> library;
    check(load_type_library(library.address()));
    std::wstring path = module_path();
    check(scope == Scope::Machine ? RegisterTypeLib(library.get(), path.data(), nullptr)
                                  : RegisterTypeLibForUser(library.get(), path.data(), nullptr));
}

void remove_type_library(Scope scope) {
    Interface<ITypeLib> library;
    check(load_type_library(library.address()));
    TLIBATTR* attributes = nullptr;
    check(library->GetLibAttr(&attributes));
    const HRESULT status =
        scope == Scope::Machine
            ? UnRegisterTypeLib(attributes->guid, attributes->wMajorVerNum,
                                attributes->wMinorVerNum, attributes->lcid, attributes->syskind)
            : UnRegisterTypeLibForUser(attributes->guid, attributes->wMajorVerNum,
                                       attributes->wMinorVerNum, attributes->lcid,
                                       attributes->syskind);
    library->ReleaseTLibAttr(attributes);
    if (status != TYPE_E_REGISTRYACCESS) {  // it is not registered
        check(status);
    }
}

template <class Body>
HRESULT guarded(const Body& body) noexcept {
    try {
        body();
        return S_OK;
    } catch (const Failure& failure) {
        return failure.status;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

}  // namespace

HRESULT register_classes(Scope scope) noexcept {
    const HRESULT status = guarded([scope] {
        const Classes classes(scope);
        for (const CreatableClass& creatable : this_module.creatable) {
            add(classes, creatable);
        }
        if (this_module.has_type_library) {
            add_type_library(scope);
        }
    });
    if (FAILED(status)) {
        unregister_classes(scope);
        return SELFREG_E_CLASS;
    }
    return S_OK;
}

HRESULT unregister_classes(Scope scope) noexcept {
    return guarded([scope] {
        const Classes classes(scope);
        for (const CreatableClass& creatable : this_module.creatable) {
            remove(classes, creatable);
        }
        if (this_module.has_type_library) {
            remove_type_library(scope);
        }
    });
}

}  // namespace cvdeveloper::com
