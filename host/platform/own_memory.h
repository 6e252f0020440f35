#pragma once

#include <cstddef>

namespace cvdeveloper::standalone {

// Memory for this process alone: zero at first, and zero again in a process that is forked off.
class OwnMemory {
  public:
    explicit OwnMemory(std::size_t size) noexcept;
    OwnMemory(const OwnMemory&) = delete;
    OwnMemory& operator=(const OwnMemory&) = delete;
    ~OwnMemory();

    // As any type is aligned; nullptr where the system gives no such memory.
    [[nodiscard]] void* get() const noexcept { return memory_; }

  private:
    void* memory_;
    std::size_t size_;
};

}  // namespace cvdeveloper::standalone
