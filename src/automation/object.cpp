#include "cvdeveloper/automation/object.h"

#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper {

Variant Object::default_value() {
    raise(RuntimeError::TypeMismatch);
}

}  // namespace cvdeveloper
