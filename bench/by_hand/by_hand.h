#pragma once

#include "common/workload.h"

namespace cvdeveloper::bench {

// The workloads written by hand on the SQLite C interface: the library's reads, writes and log
// lines, cached prepared statements, each record set's writes committed by themselves.
Workload by_hand_workload(const Order& order);

}  // namespace cvdeveloper::bench
