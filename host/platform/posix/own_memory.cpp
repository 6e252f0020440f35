#include "host/platform/own_memory.h"

#include <sys/mman.h>

namespace cvdeveloper::standalone {

namespace {

void* pages_wiped_on_fork(std::size_t size) noexcept {
    void* const pages =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) {
        return nullptr;
    }
    if (madvise(pages, size, MADV_WIPEONFORK) != 0) {
        munmap(pages, size);
        return nullptr;
    }
    return pages;
}

}  // namespace

OwnMemory::OwnMemory(std::size_t size) noexcept : memory_(pages_wiped_on_fork(size)), size_(size) {}

OwnMemory::~OwnMemory() {
    if (memory_ != nullptr) {
        munmap(memory_, size_);
    }
}

}  // namespace cvdeveloper::standalone
