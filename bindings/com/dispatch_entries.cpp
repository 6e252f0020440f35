#include "dispatch_entries.h"

#include <windows.h>

#include "dispatch.h"
#include "instance.h"
#include "type_library.h"

namespace cvdeveloper::com {

namespace {

using native::Head;

HRESULT STDMETHODCALLTYPE query_interface(Head* self, REFIID id, void** target) {
    return Instance::of(self).query(id, target);
}

ULONG STDMETHODCALLTYPE add_ref(Head* self) {
    return Instance::of(self).add_ref();
}

ULONG STDMETHODCALLTYPE release(Head* self) {
    return Instance::of(self).release();
}

HRESULT STDMETHODCALLTYPE get_type_info_count(Head* self, UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = Instance::of(self).native_class().is_dual() ? 1 : 0;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE get_type_info(Head* self, UINT index, LCID, ITypeInfo** target) {
    if (target == nullptr) {
        return E_POINTER;
    }
    *target = nullptr;
    const NativeClass& native_class = Instance::of(self).native_class();
    if (index != 0 || !native_class.is_dual()) {
        return DISP_E_BADINDEX;
    }
    return interface_information(native_class.interface_id(), target);
}

HRESULT STDMETHODCALLTYPE get_ids_of_names(Head* self, REFIID, LPOLESTR* names, UINT count, LCID,
                                           DISPID* ids) {
    if (names == nullptr || ids == nullptr || count == 0) {
        return E_INVALIDARG;
    }
    return find_ids(Instance::of(self), {names, count}, ids);
}

HRESULT STDMETHODCALLTYPE invoke_by_id(Head* self, DISPID id, REFIID, LCID, WORD flags,
                                       DISPPARAMS* parameters, VARIANT* result,
                                       EXCEPINFO* exception, UINT*) {
    if (parameters == nullptr) {
        return E_INVALIDARG;
    }
    if (result != nullptr) {
        VariantInit(result);
    }
    // The object outlives the call, whatever the call lets go.
    Instance& instance = Instance::of(self);
    instance.add_ref();
    const HRESULT status = invoke(instance, id, flags, *parameters, result, exception);
    instance.release();
    return status;
}

template <class Function>
NativeEntry entry(Function* function) noexcept {
    return reinterpret_cast<NativeEntry>(function);
}

}  // namespace

std::array<NativeEntry, 7> dispatch_entries() noexcept {
    return {entry(query_interface),     entry(add_ref),       entry(release),
            entry(get_type_info_count), entry(get_type_info), entry(get_ids_of_names),
            entry(invoke_by_id)};
}

}  // namespace cvdeveloper::com
