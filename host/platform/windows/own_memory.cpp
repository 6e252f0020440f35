#include "host/platform/own_memory.h"

#include <cstdlib>

namespace cvdeveloper::standalone {

// Processes are not forked here.
OwnMemory::OwnMemory(std::size_t size) noexcept : memory_(std::calloc(1, size)), size_(size) {}

OwnMemory::~OwnMemory() {
    std::free(memory_);
}

}  // namespace cvdeveloper::standalone
