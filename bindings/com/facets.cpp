#include "facets.h"

#include "identifiers.h"
#include "instance.h"
#include "type_library.h"

namespace cvdeveloper::com {

IUnknown* Facets::find(const IID& id) noexcept {
    if (id == IID_ISupportErrorInfo) {
        return static_cast<ISupportErrorInfo*>(this);
    }
    if (id == IID_IProvideClassInfo && instance_->native_class().is_dual()) {
        return static_cast<IProvideClassInfo*>(this);
    }
    return nullptr;
}

HRESULT Facets::QueryInterface(REFIID id, void** target) {
    return instance_->query(id, target);
}

ULONG Facets::AddRef() {
    return instance_->add_ref();
}

ULONG Facets::Release() {
    return instance_->release();
}

HRESULT Facets::InterfaceSupportsErrorInfo(REFIID id) {
    return id == instance_->native_class().interface_id() ? S_OK : S_FALSE;
}

HRESULT Facets::GetClassInfo(ITypeInfo** target) {
    if (target == nullptr) {
        return E_POINTER;
    }
    return class_information(instance_->native_class().table().class_name(), target);
}

}  // namespace cvdeveloper::com
