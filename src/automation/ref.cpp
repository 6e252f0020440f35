#include "cvdeveloper/automation/ref.h"

namespace cvdeveloper {

void RefCounted::destroy() const noexcept {
    delete this;
}

}  // namespace cvdeveloper
