#include "module.h"

// For programs that are no server. A server's module has its own of these, which are taken instead.
namespace cvdeveloper::com {

const Module this_module{
    .creatable = {}, .has_type_library = false, .first_position = 1, .start = nullptr};

HINSTANCE module_handle() noexcept {
    return nullptr;
}

}  // namespace cvdeveloper::com
