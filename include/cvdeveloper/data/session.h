#pragma once

#include <map>
#include <optional>
#include <string>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/enumerations.h"
#include "cvdeveloper/host/bound.h"

namespace cvdeveloper {

// Everything that belongs to one session: which host it is attached to, the host's objects, log
// settings, and the values that the interface keeps. Every library object of a session shares it.
class Session final : public RefCounted {
  public:
    [[nodiscard]] enumInitType kind() const noexcept { return kind_; }

    // The host in use. Error 601 when no session is attached; so are the services'.
    host::Session& host();
    host::Application& application();  // only in a session of kind INITTYPE_APPLICATION
    host::Connector& connector();      // only in a session of kind INITTYPE_CONNECTOR
    host::Util& util();
    host::Blob& blob();

    // k of a field's value, as text: what the interface means by reading a text from a row.
    std::string text(Variant value);

    // The host's objects as callers see them; nothing where there is none.
    [[nodiscard]] const ObjectRef& application_object() const noexcept;
    [[nodiscard]] const ObjectRef& connector_object() const noexcept;
    [[nodiscard]] const ObjectRef& util_object() const noexcept { return host_.util.object(); }
    [[nodiscard]] const ObjectRef& blob_object() const noexcept { return host_.blob.object(); }
    [[nodiscard]] const ObjectRef& db_ini_object() const noexcept { return host_.db_ini; }
    [[nodiscard]] const std::string& folder() const noexcept { return folder_; }

    // Steps of attaching and detaching, in the order in which the frame takes them. What a call in
    // progress under the guard has got of the host stays valid until the outermost one returns.
    void detach();
    void keep_application(host::Bound<host::Application> application);
    void keep_connector(host::Bound<host::Connector> connector);
    void keep_util(const ObjectRef& util);
    void keep_blob(const ObjectRef& blob);
    void keep_db_ini(ObjectRef db_ini);
    void keep_folder(std::string folder) { folder_ = std::move(folder); }
    void attach(enumInitType kind);

    void visit_owned(OwnedVisitor& visitor) const override;

    bool sql_log = false;  // FlagSqlLog
    std::string log_path;  // LogPath
    std::optional<std::string> database_password;

    // Values read once and then kept for the life of the Application.
    std::string letter_salutation;
    std::string picture_word_long;
    std::string picture_word_short;

    // The legal holidays asked for so far, by year.
    std::map<std::int32_t, host::Bound<host::LegalHolidays>> holidays;

    Guard guard;

  private:
    struct HostObjects {
        host::Bound<host::Application> application;
        host::Bound<host::Connector> connector;
        host::Bound<host::Util> util;
        host::Bound<host::Blob> blob;
        ObjectRef db_ini;
    };

    host::Session* attached() noexcept;

    enumInitType kind_ = INITTYPE_NONE;
    HostObjects host_;
    std::string folder_;
};

// Error 601 "CVDeveloper wurde nicht initialisiert".
[[noreturn]] void raise_not_initialised();

// A subject's operations. Holds nothing but the session; made on the spot where it is needed:
// MasterData{session}.STD_GetField("TITEL").
class Topic {
  public:
    explicit Topic(Session& session) noexcept : session_(&session) {}

  protected:
    [[nodiscard]] Session& session() const noexcept { return *session_; }

  private:
    Session* session_;
};

// A library object that belongs to a session.
class SessionObject : public LibraryObject {
  public:
    explicit SessionObject(Ref<Session> session) noexcept : session_(std::move(session)) {}

    [[nodiscard]] Session& session() const noexcept { return *session_; }
    [[nodiscard]] const Ref<Session>& shared_session() const noexcept { return session_; }
    [[nodiscard]] Guard* guard() noexcept override { return &session_->guard; }
    void visit_owned(OwnedVisitor& visitor) const override { visitor.visit(session_.get()); }

  private:
    Ref<Session> session_;
};

// Where a bound topic finds its session.
inline Session& session_of(Object& object) {
    return static_cast<SessionObject&>(object).session();
}

}  // namespace cvdeveloper
