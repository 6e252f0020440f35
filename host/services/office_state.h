#pragma once

#include <mutex>
#include <optional>

#include "host/services/federal_states.h"

namespace cvdeveloper::standalone {

// The federal state of the office that was logged on to last. Standard components are made without
// a session; those of one registration share this with its connectors. From any thread.
class OfficeState {
  public:
    void set(std::optional<FederalState> state) {
        const std::lock_guard lock(mutex_);
        state_ = state;
    }
    [[nodiscard]] std::optional<FederalState> get() const {
        const std::lock_guard lock(mutex_);
        return state_;
    }

  private:
    mutable std::mutex mutex_;
    std::optional<FederalState> state_;
};

}  // namespace cvdeveloper::standalone
