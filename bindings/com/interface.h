#pragma once

#include <unknwn.h>

#include <utility>

namespace cvdeveloper::com {

// A counted pointer to an interface of the system's.
template <class T>
class Interface {
  public:
    Interface() noexcept = default;
    explicit Interface(T* counted) noexcept : held_(counted) {
        if (held_ != nullptr) {
            held_->AddRef();
        }
    }
    Interface(const Interface& other) noexcept : Interface(other.held_) {}
    Interface(Interface&& other) noexcept : held_(std::exchange(other.held_, nullptr)) {}
    Interface& operator=(Interface other) noexcept {
        std::swap(held_, other.held_);
        return *this;
    }
    ~Interface() {
        if (held_ != nullptr) {
            held_->Release();
        }
    }

    // Where a function puts what it gives.
    [[nodiscard]] void** receive() noexcept {
        *this = Interface();
        return reinterpret_cast<void**>(&held_);
    }
    [[nodiscard]] T** address() noexcept {
        *this = Interface();
        return &held_;
    }
    [[nodiscard]] T* detach() noexcept { return std::exchange(held_, nullptr); }

    [[nodiscard]] T* get() const noexcept { return held_; }
    T* operator->() const noexcept { return held_; }
    explicit operator bool() const noexcept { return held_ != nullptr; }

  private:
    T* held_ = nullptr;
};

}  // namespace cvdeveloper::com
