#include "cvdeveloper/session/session_frame.h"

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/diagnostic_log.h"
#include "cvdeveloper/data/gateway.h"
#include "platform/files.h"
#include "platform/text.h"
#include "version.h"

namespace cvdeveloper {

namespace {

// The object, or nothing where it cannot be had.
template <class Get>
ObjectRef object_or_nothing(Get get) {
    try {
        return get();
    } catch (const AutomationError&) {
        return nullptr;
    }
}

// A host that ended the session while it was asked for its objects is not attached.
void attach_kept(Session& session, bool is_kept, enumInitType kind) {
    if (is_kept) {
        session.attach(kind);
    } else if (session.kind() == INITTYPE_NONE) {
        session.detach();
    }
}

}  // namespace

std::string SessionFrame::GetVersion() const {
    return release_version;
}

void SessionFrame::Corvanta_InitApplication() const {
    const ObjectRef running =
        object_or_nothing([] { return active_object("Corvanta.Application"); });
    if (!running) {
        show_message("Corvanta.Application-Objekt konnte nicht erstellt werden.");
        return;
    }
    Corvanta_SetApplication(running);
}

void SessionFrame::Corvanta_SetApplication(const Variant& oCV) const {
    const auto* object = oCV.get_if<ObjectRef>();
    if (object == nullptr || !*object) {
        show_message("Corvanta.Application-Objekt ist nicht vorhanden.");
        return;
    }
    const GuardLock lock(&session().guard);
    host::Bound<host::Application> application(*object);
    bool logged_in = false;
    try {
        logged_in = application->IsLoggedIn();
    } catch (const AutomationError&) {
        show_message(
            "Corvanta_SetApplication wurde mit einem ungültigen Corvanta-Objekt aufgerufen.");
        return;
    }
    if (!logged_in) {
        show_message("Sie müssen in Corvanta angemeldet sein.");
        return;
    }

    session().detach();
    host::Application& host = *application;
    session().keep_application(std::move(application));
    session().keep_util(host.Util());
    session().keep_blob(object_or_nothing([&host] { return host.Blob(); }));
    session().keep_db_ini(object_or_nothing([&host] { return host.DbIni(); }));
    session().keep_folder(host.Folder());
    attach_kept(session(), session().application_object() == *object, INITTYPE_APPLICATION);
}

void SessionFrame::Corvanta_InitConnector(std::string_view strCorvantaPath,
                                          std::string_view strUser,
                                          std::string_view strPassword) const {
    const GuardLock lock(&session().guard);
    session().detach();
    const ObjectRef connector =
        object_or_nothing([] { return create_object("CVConnector.Application"); });
    if (!connector) {
        show_message("CVConnector.Application-Objekt konnte nicht erstellt werden.");
        return;
    }
    session().keep_connector(host::Bound<host::Connector>(connector));
    if (strCorvantaPath.empty()) {
        show_message("Corvanta_InitConnector: Pfadangabe fehlt.");
        return;
    }
    std::string path(strCorvantaPath);
    if (path.ends_with('\\')) {
        path.pop_back();
    }
    if (!files::folder_exists(path)) {
        show_message("Corvanta_InitConnector: Pfad '" + path + "' nicht gefunden.");
        return;
    }
    log_on(path, strUser, strPassword);
}

void SessionFrame::log_on(const std::string& path, std::string_view user,
                          std::string_view password) const {
    const host::Bound<host::Connector> connector(session().connector_object());
    try {
        connector->Logon(path, user, upper_case(password));
    } catch (const AutomationError& error) {
        if (session().sql_log) {
            DiagnosticLog(session()).DoLog("Corvanta_InitConnector",
                                           "CorvantaPath: '" + path + "'; User: '" +
                                               std::string(user) + "'; Err: '" +
                                               error.description() + "'");
        } else {
            show_message("Anmeldung in CVConnector ist fehlgeschlagen.");
        }
        return;
    }
    session().keep_util(connector->Util());
    session().keep_blob(connector->Blob());
    session().keep_db_ini(connector->DbIni());
    session().keep_folder(path);
    attach_kept(session(), session().connector_object() == connector.object(), INITTYPE_CONNECTOR);
}

void SessionFrame::Corvanta_Done() const {
    session().detach();
}

enumInitType SessionFrame::Corvanta_InitType() const {
    return session().kind();
}

ObjectRef SessionFrame::Corvanta_Application() const {
    return session().application_object();
}

ObjectRef SessionFrame::Corvanta_Connector() const {
    return session().connector_object();
}

RecordSet SessionFrame::Corvanta_CurrentUserRS() const {
    return Gateway(session()).CV_CurrentUserRS();
}

RecordSet SessionFrame::Corvanta_STDRS() const {
    return Gateway(session()).CV_STDRS();
}

bool SessionFrame::Corvanta_IsAdmin() const {
    try {
        const Gateway gateway(session());
        const bool active = to_double(gateway.CV_CurrentUserRS().value("AKTIV")) == 1;
        const bool chief = to_double(gateway.CV_CurrentUserRS().value("Chef")) == 1;
        return active && chief;
    } catch (const AutomationError&) {
        return false;
    }
}

double SessionFrame::Corvanta_DbVersion() const {
    try {
        const RecordSet rs = Gateway(session()).CV_GetRecordset("SELECT Version FROM Version");
        return to_double(session().util().k(rs.value("Version")));
    } catch (const AutomationError&) {
        return 0;
    }
}

std::string SessionFrame::Corvanta_Folder() const {
    return session().folder();
}

ObjectRef SessionFrame::oUtil() const {
    return session().util_object();
}

ObjectRef SessionFrame::oBlob() const {
    return session().blob_object();
}

ObjectRef SessionFrame::oDbIni() const {
    return session().db_ini_object();
}

}  // namespace cvdeveloper
