#pragma once

#include "common/workload.h"

namespace cvdeveloper::bench {

// The workloads as a caller of the library writes them.
Workload library_workload(const Order& order);

// Calls by name; they need no office.
Workload call_workload(const Order& order);

// The statement that lists five detail values beside each address.
std::string cross_table_statement();

}  // namespace cvdeveloper::bench
