#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

#include "common/workload.h"

namespace cvdeveloper::bench {

namespace {

using Clock = std::chrono::steady_clock;

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

std::chrono::nanoseconds run(const Workload& workload, long count) {
    if (!workload.clean) {
        const auto begin = Clock::now();
        for (long i = 0; i < count; ++i) {
            workload.run();
        }
        return Clock::now() - begin;
    }
    std::chrono::nanoseconds total{0};
    for (long i = 0; i < count; ++i) {
        const auto begin = Clock::now();
        workload.run();
        total += Clock::now() - begin;
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
            std::cout << run(workload, count).count() << std::endl;
        } else if (word == "memory") {
            const std::size_t peak = memory("VmHWM:");
            std::cout << (peak > idle ? peak - idle : 0) << ' '
                      << (workload.allowed_memory ? workload.allowed_memory() : 0) << std::endl;
        }
    }
}

}  // namespace cvdeveloper::bench
