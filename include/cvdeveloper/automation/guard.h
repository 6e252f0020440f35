#pragma once

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace cvdeveloper {

// Lets one thread at a time in, which may enter again. What it is asked to keep goes when the
// thread has left as often as it entered: calls further out may still be using it.
class Guard {
  public:
    void lock() {
        mutex_.lock();
        ++depth_;
    }
    bool try_lock() {
        const bool entered = mutex_.try_lock();
        depth_ += entered ? 1 : 0;
        return entered;
    }
    void unlock() noexcept {
        --depth_;
        if (depth_ > 0 || kept_.empty()) {
            mutex_.unlock();
            return;
        }
        // What goes may call back, or wait for others.
        const std::vector<std::shared_ptr<const void>> leaving = std::move(kept_);
        kept_.clear();
        mutex_.unlock();
    }

    // Only for the thread inside.
    void keep(std::shared_ptr<const void> object) { kept_.push_back(std::move(object)); }

  private:
    std::recursive_mutex mutex_;
    unsigned depth_ = 0;
    std::vector<std::shared_ptr<const void>> kept_;
};

}  // namespace cvdeveloper
