#include "instances.h"

#include <mutex>
#include <unordered_map>

#include "cvdeveloper/automation/runtime_errors.h"
#include "dispatch_entries.h"
#include "foreign_object.h"
#include "instance.h"
#include "interface.h"

namespace cvdeveloper::com {

namespace {

// The instances that somebody outside holds, by their objects.
struct Instances {
    std::mutex mutex;
    std::unordered_map<const Object*, Instance*> by_object;
};

Instances& instances() {
    static Instances all;
    return all;
}

}  // namespace

Instance::Instance(const NativeClass& native_class, Ref<LibraryObject> library_object)
    : Head{native_class.vtable(), library_object.get(), library_object->guard()},
      class_(&native_class),
      owner_(std::move(library_object)),
      facets_(*this) {}

Instance::~Instance() = default;

Instance* Instance::behind(IUnknown* object) noexcept {
    const auto* head = reinterpret_cast<const native::Head*>(object);
    return head->vtable[0] == dispatch_entries()[0] ? &of(head) : nullptr;
}

HRESULT Instance::query(const IID& id, void** target) noexcept {
    if (target == nullptr) {
        return E_POINTER;
    }
    IUnknown* found = nullptr;
    if (id == IID_IUnknown || id == IID_IDispatch || id == class_->interface_id()) {
        found = dispatch();
    } else {
        found = facets_.find(id);
    }
    *target = found;
    if (found == nullptr) {
        return E_NOINTERFACE;
    }
    add_ref();
    return S_OK;
}

ULONG Instance::release() noexcept {
    // The last holder goes under the lock, so that nobody is given what is about to go.
    ULONG count = references_.load(std::memory_order_relaxed);
    while (count > 1) {
        if (references_.compare_exchange_weak(count, count - 1, std::memory_order_acq_rel)) {
            return count - 1;
        }
    }
    {
        Instances& all = instances();
        const std::lock_guard lock(all.mutex);
        count = references_.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (count != 0) {
            return count;
        }
        all.by_object.erase(owner_.get());
    }
    delete this;
    return 0;
}

IDispatch* dispatch_of(const ObjectRef& object) {
    if (!object) {
        return nullptr;
    }
    if (const auto* foreign = dynamic_cast<const ForeignObject*>(object.get())) {
        return Interface(foreign->get()).detach();
    }
    auto* of_library = dynamic_cast<LibraryObject*>(object.get());
    if (of_library == nullptr) {
        raise(RuntimeError::TypeMismatch, object->class_name());
    }
    const NativeClass& native_class = NativeClass::of(of_library->table());
    Instances& all = instances();
    const std::lock_guard lock(all.mutex);
    Instance*& known = all.by_object[of_library];
    if (known == nullptr) {
        known = new Instance(native_class, Ref<LibraryObject>(of_library));
    }
    known->add_ref();
    return known->dispatch();
}

ObjectRef object_of(IUnknown* object) {
    if (object == nullptr) {
        return nullptr;
    }
    Interface<IDispatch> dispatch;
    if (FAILED(object->QueryInterface(IID_IDispatch, dispatch.receive())) || !dispatch) {
        raise(RuntimeError::TypeMismatch);
    }
    if (const Instance* own = Instance::behind(dispatch.get())) {
        return own->owner();
    }
    return make_object<ForeignObject>(std::move(dispatch));
}

std::size_t objects_in_use() noexcept {
    Instances& all = instances();
    const std::lock_guard lock(all.mutex);
    return all.by_object.size();
}

}  // namespace cvdeveloper::com
