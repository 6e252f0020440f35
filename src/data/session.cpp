#include "cvdeveloper/data/session.h"

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
            return &*application_;
        case INITTYPE_CONNECTOR:
            return &*connector_;
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
    return *application_;
}

host::Connector& Session::connector() {
    if (kind_ != INITTYPE_CONNECTOR) {
        raise_not_initialised();
    }
    return *connector_;
}

host::Util& Session::util() {
    if (kind_ == INITTYPE_NONE) {
        raise_not_initialised();
    }
    if (!util_) {
        raise(RuntimeError::ObjectNotSet, "Util");
    }
    return *util_;
}

host::Blob& Session::blob() {
    if (kind_ == INITTYPE_NONE) {
        raise_not_initialised();
    }
    if (!blob_) {
        raise(RuntimeError::ObjectNotSet, "Blob");
    }
    return *blob_;
}

std::string Session::text(Variant value) {
    return to_text(util().k(std::move(value)));
}

const ObjectRef& Session::application_object() const noexcept {
    return application_.object();
}

const ObjectRef& Session::connector_object() const noexcept {
    return connector_.object();
}

void Session::detach() {
    kind_ = INITTYPE_NONE;
    application_ = {};
    connector_ = {};
    util_ = {};
    blob_ = {};
    db_ini_ = nullptr;
    folder_.clear();
}

void Session::keep_application(host::Bound<host::Application> application) {
    application_ = std::move(application);
}

void Session::keep_connector(host::Bound<host::Connector> connector) {
    connector_ = std::move(connector);
}

void Session::keep_util(const ObjectRef& util) {
    util_ = host::Bound<host::Util>(util);
}

void Session::keep_blob(const ObjectRef& blob) {
    blob_ = host::Bound<host::Blob>(blob);
}

void Session::keep_db_ini(ObjectRef db_ini) {
    db_ini_ = std::move(db_ini);
}

void Session::visit_owned(OwnedVisitor& visitor) const {
    for (const ObjectRef* object : {&application_.object(), &connector_.object(), &util_.object(),
                                    &blob_.object(), &db_ini_}) {
        visitor.visit(object->get());
    }
}

void Session::attach(enumInitType kind) {
    database_password.reset();
    kind_ = kind;
}

}  // namespace cvdeveloper
