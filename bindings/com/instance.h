#pragma once

#include <windows.h>

#include <oleauto.h>

#include <atomic>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/automation/native_entry.h"
#include "facets.h"
#include "native_class.h"

namespace cvdeveloper::com {

// What the system holds of an object of the library. Its vtable begins with the entries of
// dispatch_entries.h and goes on with those of the class's rows.
class Instance final : public native::Head {
  public:
    Instance(const NativeClass& native_class, Ref<LibraryObject> library_object);
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;
    ~Instance();

    // The instance behind a pointer that the system gave, where it is one of this module's.
    static Instance* behind(IUnknown* object) noexcept;
    static Instance& of(const native::Head* head) noexcept {
        return *static_cast<Instance*>(const_cast<native::Head*>(head));
    }

    [[nodiscard]] const NativeClass& native_class() const noexcept { return *class_; }
    [[nodiscard]] LibraryObject& library_object() const noexcept { return *owner_; }
    [[nodiscard]] const Ref<LibraryObject>& owner() const noexcept { return owner_; }
    [[nodiscard]] IDispatch* dispatch() noexcept {
        return reinterpret_cast<IDispatch*>(static_cast<native::Head*>(this));
    }

    HRESULT query(const IID& id, void** target) noexcept;
    ULONG add_ref() noexcept { return references_.fetch_add(1, std::memory_order_relaxed) + 1; }
    ULONG release() noexcept;

  private:
    friend IDispatch* dispatch_of(const ObjectRef& object);

    std::atomic<ULONG> references_{0};
    const NativeClass* class_;
    Ref<LibraryObject> owner_;
    Facets facets_;
};

}  // namespace cvdeveloper::com
