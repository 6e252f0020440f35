#include "module.h"

#include "connector/class_ids.h"
#include "cvdeveloper/automation/class_registry.h"
#include "host/register.h"

// The stand-alone host as a server: what machines without the host program register.
namespace cvdeveloper::com {

namespace {

template <std::size_t index>
ObjectRef create() {
    return create_object(connector_class_ids[index].name);
}

template <std::size_t index>
constexpr CreatableClass creatable{connector_class_ids[index].name, &connector_class_ids[index],
                                   create<index>};

constexpr CreatableClass classes[] = {creatable<0>, creatable<1>, creatable<2>, creatable<3>};

}  // namespace

const Module this_module{.creatable = classes,
                         .has_type_library = false,
                         .first_position = 0,
                         .start = standalone::register_standalone_host};

}  // namespace cvdeveloper::com
