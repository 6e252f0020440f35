// The worker of the library and of the hand-written peers.
//   cvdeveloper_bench office NAME FOLDER (full|off) BYTES
//   cvdeveloper_bench SIDE WORKLOAD FOLDER (full|off)

#include <cstring>
#include <exception>
#include <iostream>

#include "by_hand/by_hand.h"
#include "library/library.h"
#include "library/offices.h"

namespace {

using namespace cvdeveloper::bench;

Workload workload_of(const Order& order) {
    if (order.workload == "call_by_name") {
        return call_workload(order);
    }
    return order.side == "library" ? library_workload(order) : by_hand_workload(order);
}

}  // namespace

int main(int count, char** words) {
    try {
        if (count == 6 && std::strcmp(words[1], "office") == 0) {
            make_office(words[2], words[3], std::strcmp(words[4], "full") == 0,
                        std::stoull(words[5]));
            return 0;
        }
        if (count != 5) {
            std::cerr << "usage: see the top of main.cpp\n";
            return 2;
        }
        serve(workload_of({.side = words[1],
                           .workload = words[2],
                           .folder = words[3],
                           .full_sync = std::strcmp(words[4], "full") == 0}));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
