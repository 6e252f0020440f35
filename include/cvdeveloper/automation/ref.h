#pragma once

#include <atomic>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace cvdeveloper {

class RefCounted;

// Is told the objects that another one owns.
class OwnedVisitor {
  public:
    virtual void visit(const RefCounted* object) = 0;  // may be nothing

  protected:
    ~OwnedVisitor() = default;
};

// What a Ref points to: counts its owners, atomically, and goes with the last one.
class RefCounted {
  public:
    RefCounted(const RefCounted&) = delete;
    RefCounted& operator=(const RefCounted&) = delete;

    void add_ref() const noexcept { owners_.fetch_add(1, std::memory_order_relaxed); }
    void release() const noexcept {
        if (owners_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            destroy();
        }
    }
    [[nodiscard]] std::uint32_t owners() const noexcept {
        return owners_.load(std::memory_order_relaxed);
    }

    // Tells each object that this one owns, once for each share it has in it. A script host's
    // garbage collector finds circles by it; what is not told is never collected, nothing worse.
    virtual void visit_owned(OwnedVisitor& visitor) const;

  protected:
    RefCounted() = default;
    virtual ~RefCounted() = default;

  private:
    void destroy() const noexcept;

    mutable std::atomic<std::uint32_t> owners_{0};
};

// Shared ownership of a RefCounted. Empty is "nothing".
template <class T>
class Ref {
  public:
    Ref() noexcept = default;
    Ref(std::nullptr_t) noexcept {}
    explicit Ref(T* object) noexcept : object_(object) { add_ref(); }
    Ref(const Ref& other) noexcept : object_(other.object_) { add_ref(); }
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <std::derived_from<T> U>
    Ref(const Ref<U>& other) noexcept : Ref(other.get()) {}
    template <std::derived_from<T> U>
    Ref(Ref<U>&& other) noexcept : object_(other.detach()) {}
    ~Ref() {
        if (object_ != nullptr) {
            object_->release();
        }
    }
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    // Takes over an owner's share without counting it again.
    static Ref adopt(T* object) noexcept {
        Ref ref;
        ref.object_ = object;
        return ref;
    }
    T* detach() noexcept { return std::exchange(object_, nullptr); }

    [[nodiscard]] T* get() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    template <class U>
    bool operator==(const Ref<U>& other) const noexcept {
        return object_ == other.get();
    }
    bool operator==(std::nullptr_t) const noexcept { return object_ == nullptr; }

  private:
    void add_ref() const noexcept {
        if (object_ != nullptr) {
            object_->add_ref();
        }
    }

    T* object_ = nullptr;
};

}  // namespace cvdeveloper
