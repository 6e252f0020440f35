#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// One operation's writes. Leaving commits them, on success and on failure alike: what was written
// before an error stays written.
class Unit {
  public:
    explicit Unit(Session& session);
    Unit(const Unit&) = delete;
    Unit& operator=(const Unit&) = delete;
    ~Unit() = default;

    template <class Function>
    void run(Function&& function) {
        try {
            std::forward<Function>(function)();
        } catch (const AutomationError& error) {
            leave_after(error);
        } catch (...) {
            leave_quietly();
            throw;
        }
        leave();
    }

  private:
    // A failure to keep the writes takes the gateway's error path.
    void leave();
    // Raises the error; a failure to keep what was written before it is appended to it.
    [[noreturn]] void leave_after(const AutomationError& error);
    void leave_quietly() noexcept;

    GuardLock lock_;
    Session& session_;
    host::UnitOfWork* host_unit_;
};

// Runs the function as one unit of work where the host has such a thing, as it is where it has
// none, and gives back its result.
template <class Function>
auto in_unit(Session& session, Function&& function) {
    Unit unit(session);
    if constexpr (std::is_void_v<decltype(function())>) {
        unit.run(std::forward<Function>(function));
    } else {
        std::optional<decltype(function())> result;
        unit.run([&] { result.emplace(std::forward<Function>(function)()); });
        return std::move(*result);
    }
}

}  // namespace cvdeveloper
