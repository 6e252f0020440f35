#include "cvdeveloper/automation/ref.h"

namespace cvdeveloper {

void RefCounted::visit_owned(OwnedVisitor&) const {}

void RefCounted::destroy() const noexcept {
    delete this;
}

}  // namespace cvdeveloper
