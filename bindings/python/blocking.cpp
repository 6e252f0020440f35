#include "blocking.h"

#include <chrono>

#include "cvdeveloper/automation/class_registry.h"
#include "errors.h"
#include "gil.h"

namespace cvdeveloper::python {

namespace {

// A thread that does not hold the lock, or has given it up already, has nothing to give up.
void* release() {
    return holds_interpreter_lock() ? PyEval_SaveThread() : nullptr;
}

void reacquire(void* state) {
    PyEval_RestoreThread(static_cast<PyThreadState*>(state));
}

// Asking takes the lock, for which other threads may make us wait: not too often.
bool is_time_to_ask() {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds pause{50};
    thread_local Clock::time_point next;
    const auto present = Clock::now();
    if (present < next) {
        return false;
    }
    next = present + pause;
    return true;
}

void check_for_interrupt() {
    if (Py_IsInitialized() == 0 || !is_time_to_ask()) {
        return;
    }
    const InterpreterLock lock;
    if (PyErr_CheckSignals() < 0) {
        throw_interrupt_of_python();
    }
}

}  // namespace

void install_blocking_hook() {
    set_blocking_hook(
        {.release = release, .reacquire = reacquire, .check_interrupt = check_for_interrupt});
}

}  // namespace cvdeveloper::python
