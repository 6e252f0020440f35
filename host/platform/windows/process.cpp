#include "host/platform/process.h"

#include <windows.h>

namespace cvdeveloper::standalone {

long process_number() noexcept {
    return static_cast<long>(GetCurrentProcessId());
}

}  // namespace cvdeveloper::standalone
