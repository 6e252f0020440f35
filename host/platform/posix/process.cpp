#include "host/platform/process.h"

#include <unistd.h>

namespace cvdeveloper::standalone {

long process_number() noexcept {
    return getpid();
}

}  // namespace cvdeveloper::standalone
