#pragma once

#include <windows.h>

#include <memory>

namespace cvdeveloper::files {

// Rights of the user alone, handed on to what is made in a folder. Error 70 where the system does
// not say who the user is.
class OwnerOnly {
  public:
    OwnerOnly();

    [[nodiscard]] SECURITY_ATTRIBUTES* attributes() noexcept { return &attributes_; }
    [[nodiscard]] PSECURITY_DESCRIPTOR descriptor() const noexcept { return descriptor_.get(); }

  private:
    struct LocalDeleter {
        void operator()(void* memory) const noexcept { LocalFree(memory); }
    };

    std::unique_ptr<void, LocalDeleter> descriptor_;
    SECURITY_ATTRIBUTES attributes_{};
};

}  // namespace cvdeveloper::files
