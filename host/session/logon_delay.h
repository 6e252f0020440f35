#pragma once

#include <chrono>
#include <string>
#include <utility>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// The time between a user's failed log-on and his next one: doubled by each failure, up to a
// bound.
std::chrono::milliseconds delay_after(int failures) noexcept;

// Makes one user's log-ons wait their turn after failed ones, whichever processes they come from.
// Other users wait for nothing. Failures are forgotten after a log-on that succeeds, and after a
// while.
class LogonDelay {
  public:
    // Whose log-ons: a user's key, or what stands for names that nobody has.
    LogonDelay(Database& database, std::string owner)
        : database_(database), owner_(std::move(owner)) {}

    // Waits until it is this log-on's turn. False where too many wait already: refused without a
    // look at the password.
    bool wait_for_turn();
    // What became of the log-on.
    void note_failure();
    void note_success();

    // Failed log-ons in a row, this one included.
    [[nodiscard]] int failures() const noexcept { return failures_; }

  private:
    struct Row {
        int failures = 0;
        double next_try = 0;
    };
    [[nodiscard]] Row read();
    void write(const Row& row);
    // Takes the next turn as if this log-on failed, so that several at once wait one by one. The
    // moment of its turn.
    double take_turn();

    Database& database_;
    std::string owner_;
    int failures_ = 0;
    bool is_counted_ = false;
};

}  // namespace cvdeveloper::standalone
