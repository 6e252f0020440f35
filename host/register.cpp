#include "host/register.h"

#include <memory>

#include "cvdeveloper/automation/class_registry.h"
#include "host/services/legal_holidays.h"
#include "host/services/office_state.h"
#include "host/services/progress.h"
#include "host/services/standard_util.h"
#include "host/session/connector.h"

namespace cvdeveloper::standalone {

void register_standalone_host() {
    const auto state = std::make_shared<OfficeState>();
    register_class("CVConnector.Application",
                   [state] { return ObjectRef(make_object<Connector>(state)); });
    register_class("clqexStdC10.cUtil", [] { return ObjectRef(make_object<StandardUtil>()); });
    register_class("clqexstdc10.cLegalHolidays",
                   [state] { return ObjectRef(make_object<LegalHolidays>(state->get())); });
    register_class("clqexstdc10.cProgress", [] { return ObjectRef(make_object<Progress>()); });
}

}  // namespace cvdeveloper::standalone
