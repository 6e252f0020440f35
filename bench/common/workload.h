#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace cvdeveloper::bench {

// One thing to be measured, as one side does it.
struct Workload {
    std::function<void()> run;
    // Takes back what a run has left behind; not measured.
    std::function<void()> clean = {};
    // How much memory runs may take; measured on request.
    std::function<std::size_t()> allowed_memory = {};
};

// What a worker is started with.
struct Order {
    std::string side;      // "library", "by_hand", ...
    std::string workload;  // "create_activity", ...
    std::string folder;    // the office
    bool full_sync = true;
};

// Obeys standard input: "run N" answers with the nanoseconds that N runs took, "memory" with the
// bytes that the process has needed at most beyond what it needed when it was ready, and with what
// it may need.
void serve(const Workload& workload);

// Where the compiler must believe that a value is used.
template <class T>
void keep(const T& value) {
    asm volatile("" : : "r"(&value) : "memory");
}

}  // namespace cvdeveloper::bench
