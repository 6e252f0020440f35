#include "host/register.h"

#include "cvdeveloper/automation/class_registry.h"
#include "host/services/standard_util.h"
#include "host/session/connector.h"

namespace cvdeveloper::standalone {

void register_standalone_host() {
    register_class("CVConnector.Application", [] { return ObjectRef(make_object<Connector>()); });
    register_class("clqexStdC10.cUtil", [] { return ObjectRef(make_object<StandardUtil>()); });
}

}  // namespace cvdeveloper::standalone
