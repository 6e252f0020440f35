#include "cvdeveloper/data/session.h"

#include <memory>
#include <utility>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper {

void raise_not_initialised() {
    throw AutomationError(601, "", "CVDeveloper wurde nicht initialisiert");
}

host::Session* Session::attached() noexcept {
    switch (kind_) {
        case INITTYPE_APPLICATION:
            return &*host_.application;
        case INITTYPE_CONNECTOR:
            return &*host_.connector;
        case INITTYPE_NONE:
            break;
    }
    return nullptr;
}

host::Session& Session::host() {
    host::Session* host = attached();
    if (host == nullptr) {
        raise_not_initialised();
    }
    return *host;
}

host::Application& Session::application() {
    if (kind_ != INITTYPE_APPLICATION) {
        raise_not_initialised();
    }
    return *host_.application;
}

host::Connector& Session::connector() {
    if (kind_ != INITTYPE_CONNECTOR) {
        raise_not_initialised();
    }
    return *host_.connector;
}

host::Util& Session::util() {
    if (kind_ == INITTYPE_NONE) {
        raise_not_initialised();
    }
    if (!host_.util) {
        raise(RuntimeError::ObjectNotSet, "Util");
    }
    return *host_.util;
}

host::Blob& Session::blob() {
    if (kind_ == INITTYPE_NONE) {
        raise_not_initialised();
    }
    if (!host_.blob) {
        raise(RuntimeError::ObjectNotSet, "Blob");
    }
    return *host_.blob;
}

std::string Session::text(Variant value) {
    return to_text(util().k(std::move(value)));
}

const ObjectRef& Session::application_object() const noexcept {
    return host_.application.object();
}

const ObjectRef& Session::connector_object() const noexcept {
    return host_.connector.object();
}

void Session::detach() {
    const GuardLock lock(&guard);
    kind_ = INITTYPE_NONE;
    folder_.clear();
    // A host may detach while it is being called: its objects live until that call has returned.
    guard.keep(std::make_shared<HostObjects>(std::exchange(host_, {})));
}

void Session::keep_application(host::Bound<host::Application> application) {
    host_.application = std::move(application);
}

void Session::keep_connector(host::Bound<host::Connector> connector) {
    host_.connector = std::move(connector);
}

void Session::keep_util(const ObjectRef& util) {
    host_.util = host::Bound<host::Util>(util);
}

void Session::keep_blob(const ObjectRef& blob) {
    host_.blob = host::Bound<host::Blob>(blob);
}

void Session::keep_db_ini(ObjectRef db_ini) {
    host_.db_ini = std::move(db_ini);
}

void Session::visit_owned(OwnedVisitor& visitor) const {
    for (const ObjectRef* object : {&host_.application.object(), &host_.connector.object(),
                                    &host_.util.object(), &host_.blob.object(), &host_.db_ini}) {
        visitor.visit(object->get());
    }
}

void Session::attach(enumInitType kind) {
    database_password.reset();
    kind_ = kind;
}

}  // namespace cvdeveloper
