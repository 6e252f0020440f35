#include "type_library.h"

#include <algorithm>

#include "identifiers.h"
#include "module.h"

namespace cvdeveloper::com {

namespace {

HRESULT information(const GUID& id, ITypeInfo** target) noexcept {
    *target = nullptr;
    ITypeLib* library = nullptr;
    HRESULT status = load_type_library(&library);
    if (SUCCEEDED(status)) {
        status = library->GetTypeInfoOfGuid(id, target);
        library->Release();
    }
    return status;
}

}  // namespace

std::wstring module_path() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD size =
            GetModuleFileNameW(module_handle(), path.data(), static_cast<DWORD>(path.size()));
        if (size < path.size()) {
            path.resize(size);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

HRESULT load_type_library(ITypeLib** target) noexcept {
    if (!this_module.has_type_library) {
        return TYPE_E_CANTLOADLIBRARY;
    }
    try {
        return LoadTypeLibEx(module_path().c_str(), REGKIND_NONE, target);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

HRESULT interface_information(const IID& id, ITypeInfo** target) noexcept {
    return information(id, target);
}

HRESULT class_information(std::string_view class_name, ITypeInfo** target) noexcept {
    const auto* found = std::ranges::find(class_ids, class_name, &ClassIds::name);
    if (found == std::end(class_ids)) {
        return TYPE_E_ELEMENTNOTFOUND;
    }
    try {
        return information(identifier(found->class_id), target);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

}  // namespace cvdeveloper::com
