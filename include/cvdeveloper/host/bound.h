#pragma once

#include <memory>

#include "cvdeveloper/automation/object.h"
#include "cvdeveloper/host/services.h"
#include "cvdeveloper/host/session.h"

namespace cvdeveloper::host {

// A host object and how the library calls it: directly where it implements T, else by its members'
// names. The object itself is what callers get to see.
template <class T>
class Bound {
  public:
    Bound() = default;
    explicit Bound(ObjectRef object);

    [[nodiscard]] const ObjectRef& object() const noexcept { return object_; }
    T* operator->() const noexcept { return api_; }
    T& operator*() const noexcept { return *api_; }
    explicit operator bool() const noexcept { return api_ != nullptr; }

  private:
    ObjectRef object_;
    std::unique_ptr<T> late_;  // set for objects that are called by name
    T* api_ = nullptr;
};

// How a T is called by name; one for each class of the seam.
template <class T>
std::unique_ptr<T> late_bound(Object& object);

template <class T>
Bound<T>::Bound(ObjectRef object) : object_(std::move(object)) {
    if (object_) {
        api_ = dynamic_cast<T*>(object_.get());
        if (api_ == nullptr) {
            late_ = late_bound<T>(*object_);
            api_ = late_.get();
        }
    }
}

template <>
std::unique_ptr<Util> late_bound(Object& object);
template <>
std::unique_ptr<Blob> late_bound(Object& object);
template <>
std::unique_ptr<Pane> late_bound(Object& object);
template <>
std::unique_ptr<StandardUtil> late_bound(Object& object);
template <>
std::unique_ptr<LegalHolidays> late_bound(Object& object);
template <>
std::unique_ptr<Field> late_bound(Object& object);
template <>
std::unique_ptr<Application> late_bound(Object& object);
template <>
std::unique_ptr<Connector> late_bound(Object& object);

}  // namespace cvdeveloper::host
