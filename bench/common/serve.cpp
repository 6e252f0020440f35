#include <time.h>

#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>

#include "common/workload.h"

namespace cvdeveloper::bench {

namespace {

// Nanoseconds by the wall's clock and of this process's own work.
struct Times {
    std::int64_t wall = 0;
    std::int64_t processor = 0;

    Times& operator+=(const Times& other) {
        wall += other.wall;
        processor += other.processor;
        return *this;
    }
};

std::int64_t read_clock(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

template <class Action>
Times timed(const Action& action) {
    const std::int64_t processor = read_clock(CLOCK_PROCESS_CPUTIME_ID);
    const std::int64_t wall = read_clock(CLOCK_MONOTONIC);
    action();
    return {.wall = read_clock(CLOCK_MONOTONIC) - wall,
            .processor = read_clock(CLOCK_PROCESS_CPUTIME_ID) - processor};
}

// A line of /proc/self/status in bytes.
std::size_t memory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == name) {
            std::size_t kilobytes = 0;
            status >> kilobytes;
            return kilobytes * 1024;
        }
    }
    return 0;
}

// The peak counts from now on.
void forget_peak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

Times run(const Workload& workload, long count) {
    if (!workload.clean) {
        return timed([&] {
            for (long i = 0; i < count; ++i) {
                workload.run();
            }
        });
    }
    Times total;
    for (long i = 0; i < count; ++i) {
        total += timed(workload.run);
        workload.clean();
    }
    return total;
}

}  // namespace

void serve(const Workload& workload) {
    forget_peak();
    const std::size_t idle = memory("VmRSS:");
    std::cout << "ready" << std::endl;
    for (std::string word; std::cin >> word;) {
        if (word == "run") {
            long count = 0;
            std::cin >> count;
            const Times times = run(workload, count);
            std::cout << times.wall << ' ' << times.processor << std::endl;
        } else if (word == "memory") {
            const std::size_t peak = memory("VmHWM:");
            std::cout << (peak > idle ? peak - idle : 0) << ' '
                      << (workload.allowed_memory ? workload.allowed_memory() : 0) << std::endl;
        }
    }
}

}  // namespace cvdeveloper::bench
