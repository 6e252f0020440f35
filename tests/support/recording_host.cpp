#include "support/recording_host.h"

#include <deque>
#include <filesystem>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/files.h"

namespace cvdeveloper {

struct RecordingHost::State {
    std::shared_ptr<Lines> log = std::make_shared<Lines>();
    std::map<std::string, std::deque<Rows>, std::less<>> answers;
    std::map<std::string, AutomationError, std::less<>> refusals;
    std::map<std::string, Rows, std::less<>> blobs;
    std::optional<AutomationError> update_refusal;
    Rows user = row({{"DSN", "USER"}, {"Login_Name", "chef"}});
    Rows master_data = row({{"DSN", "STD"}});
    std::string opened_file;
    std::map<std::string, std::string, std::less<>> placeholders;
    std::int32_t build = 133;
    int keys = 0;
    int blob_keys = 0;

    RecordSet make(std::string name, Rows rows) {
        const auto object = make_object<ScriptedRecordSet>(std::move(name), std::move(rows), log);
        return {object, *object};
    }
};

namespace {

using State = std::shared_ptr<RecordingHost::State>;

// What all objects of the host have in common: they answer to C++ alone.
class HostObject : public Object {
  public:
    explicit HostObject(State state) : state_(std::move(state)) {}
    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        raise(RuntimeError::NoSuchMember, member);
    }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "RecordingHost"; }

  protected:
    void note(std::string line) const { state_->log->push_back(std::move(line)); }
    [[nodiscard]] RecordingHost::State& state() const { return *state_; }
    [[nodiscard]] const State& shared() const { return state_; }

  private:
    State state_;
};

class UtilDouble final : public HostObject, public host::Util {
  public:
    using HostObject::HostObject;
    std::string SqlUid(std::string_view key) override { return "'" + std::string(key) + "'"; }
    Variant SqlStrNull(std::string_view text) override {
        return text.empty() ? Variant(Null{}) : Variant(text);
    }
    std::string NewGUID() override { return "GUID-" + std::to_string(++state().keys); }
    void Kill(std::string_view path) override { note("Kill " + std::string(path)); }
    std::string GetFileExtender(std::string_view path) override {
        const std::size_t dot = path.rfind('.');
        return dot == std::string_view::npos ? std::string() : std::string(path.substr(dot + 1));
    }
    std::string GeneralDate(Date date) override { return to_text(Variant(date)); }
    Variant k(Variant value) override { return value.is<Null>() ? Variant("") : value; }
    Variant d(Variant value) override { return value.is<Null>() ? Variant(0.0) : value; }
    Variant b(Variant value) override {
        return value.is<Null>() ? Variant(false) : Variant(to_boolean(value));
    }
};

class BlobDouble final : public HostObject, public host::Blob {
  public:
    using HostObject::HostObject;
    std::string SaveBlobFile(std::string_view path, std::string_view link_key,
                             std::int32_t kind) override {
        note("SaveBlobFile " + std::string(path) + ", " + std::string(link_key) + ", " +
             std::to_string(kind));
        return "BLOB-" + std::to_string(++state().blob_keys);
    }
    std::string SaveBlobFile(std::string_view path, std::string_view link_key, std::int32_t kind,
                             std::string_view blob_key, bool mark_send) override {
        note("SaveBlobFile " + std::string(path) + ", " + std::string(link_key) + ", " +
             std::to_string(kind) + ", " + std::string(blob_key) + ", " + written(mark_send));
        return std::string(blob_key) + "-sent";
    }
    void DeleteBlobFile(std::string_view blob_key, std::string_view link_key, std::int32_t kind,
                        std::string_view info) override {
        note("DeleteBlobFile " + std::string(blob_key) + ", '" + std::string(link_key) + "', " +
             std::to_string(kind) + ", " + std::string(info));
    }
    RecordSet GetBlobInfos(std::string_view link_key) override {
        note("GetBlobInfos " + std::string(link_key));
        const auto found = state().blobs.find(link_key);
        return state().make("Blob", found == state().blobs.end() ? Rows{} : found->second);
    }
    std::string GetSourceFilename(std::string_view blob_key) override {
        note("GetSourceFilename " + std::string(blob_key));
        return "C:\\Quelle.pdf";
    }
    std::string OpenBlobFile(std::string_view blob_key, std::string_view link_key,
                             std::int32_t kind) override {
        note("OpenBlobFile " + std::string(blob_key) + ", " + std::string(link_key) + ", " +
             std::to_string(kind));
        return state().opened_file;
    }
};

class PaneDouble final : public HostObject, public host::Pane {
  public:
    using HostObject::HostObject;
    void Find(std::string_view where) override { note("Find " + std::string(where)); }
    void FindDsn(std::string_view key) override { note("FindDsn " + std::string(key)); }
    void Show() override { note("Show"); }
};

// The members that both forms of session have.
template <class Base>
class SessionDouble : public HostObject, public Base {
  public:
    using HostObject::HostObject;
    using Password = host::Session::Password;

    ObjectRef Util() override { return make_object<UtilDouble>(shared()); }
    ObjectRef Blob() override { return make_object<BlobDouble>(shared()); }
    ObjectRef DbIni() override { return nullptr; }
    RecordSet GetRecordset(std::string_view sql, Password password) override {
        note(std::string(sql) + with(password));
        if (const auto refusal = state().refusals.find(sql); refusal != state().refusals.end()) {
            throw refusal->second;
        }
        const auto found = state().answers.find(sql);
        if (found == state().answers.end()) {
            return state().make(std::string(sql), {});
        }
        Rows rows = found->second.front();
        if (found->second.size() > 1) {
            found->second.pop_front();
        }
        return state().make(std::string(sql), std::move(rows));
    }
    void UpdateRecordset(RecordSet&, Password password) override {
        note("Update" + with(password));
        if (const auto refusal = std::exchange(state().update_refusal, std::nullopt)) {
            throw *refusal;
        }
    }
    RecordSet CurrentUserRS() override {
        note("CurrentUserRS");
        return state().make("Benutzer", state().user);
    }
    RecordSet STDRS() override {
        note("STDRS");
        return state().make("Std", state().master_data);
    }
    std::string ParseAndFill(RecordSet&, std::int16_t type, bool& show) override {
        note("ParseAndFill " + std::to_string(type) + ", " + written(show));
        show = !show;
        return "gelesen";
    }

  private:
    static std::string with(const Password& password) {
        return password ? " [" + std::string(*password) + "]" : std::string();
    }
};

class ApplicationDouble final : public SessionDouble<host::Application> {
  public:
    using SessionDouble::SessionDouble;
    bool IsLoggedIn() override { return true; }
    std::string Folder() override { return "C:\\Corvanta"; }
    std::int32_t VersionBuild() override { return state().build; }
    ObjectRef Panes(std::string_view form) override {
        note("Panes " + std::string(form));
        return form == "F_UNBEKANNT" ? ObjectRef() : make_object<PaneDouble>(shared());
    }
    std::string Get_Platzhalter(const RecordSet&, std::string_view name,
                                std::string_view sql) override {
        note("Get_Platzhalter " + std::string(name) + ", " + std::string(sql));
        const auto found = state().placeholders.find(name);
        return found == state().placeholders.end() ? "<" + std::string(name) + ">" : found->second;
    }
};

class ConnectorDouble final : public SessionDouble<host::Connector> {
  public:
    using SessionDouble::SessionDouble;
    void Logon(std::string_view path, std::string_view user, std::string_view password) override {
        note("Logon " + std::string(path) + ", " + std::string(user) + ", " +
             std::string(password));
    }
    ObjectRef Progress() override {
        note("Progress");
        return make_object<PaneDouble>(shared());
    }
};

}  // namespace

namespace {

// Keeps the log of empty results out of the file system's root.
Ref<Application> new_application() {
    auto app = make_object<Application>();
    app->put_LogPath(files::temp_folder());
    return app;
}

}  // namespace

RecordingHost::RecordingHost() : state_(std::make_shared<State>()) {}

void RecordingHost::answer(std::string_view sql, Rows rows) {
    state_->answers[std::string(sql)].push_back(std::move(rows));
}

void RecordingHost::refuse(std::string_view sql, AutomationError error) {
    state_->refusals.emplace(sql, std::move(error));
}

void RecordingHost::refuse_update(AutomationError error) {
    state_->update_refusal = std::move(error);
}

void RecordingHost::set_user(std::vector<std::pair<std::string, Variant>> fields) {
    state_->user = row(fields);
}

void RecordingHost::set_master_data(std::vector<std::pair<std::string, Variant>> fields) {
    state_->master_data = row(fields);
}

void RecordingHost::answer_blobs(std::string_view link_key, Rows rows) {
    state_->blobs.insert_or_assign(std::string(link_key), std::move(rows));
}

void RecordingHost::set_opened_file(std::string path) {
    state_->opened_file = std::move(path);
}

void RecordingHost::answer_placeholder(std::string_view name, std::string value) {
    state_->placeholders.insert_or_assign(std::string(name), std::move(value));
}

void RecordingHost::set_build(std::int32_t build) {
    state_->build = build;
}

Ref<Application> RecordingHost::attached() const {
    auto app = new_application();
    app->Corvanta_SetApplication(make_object<ApplicationDouble>(state_));
    state_->log->clear();
    return app;
}

Ref<Application> RecordingHost::connected(const std::string& folder) const {
    register_class("CVConnector.Application",
                   [state = state_] { return make_object<ConnectorDouble>(state); });
    auto app = new_application();
    app->Corvanta_InitConnector(folder, "chef", "geheim");
    register_class("CVConnector.Application", nullptr);
    return app;
}

RecordSet RecordingHost::record_set(Rows rows) const {
    return state_->make("Satz", std::move(rows));
}

Lines RecordingHost::log() const {
    return *state_->log;
}

void RecordingHost::clear_log() {
    state_->log->clear();
}

}  // namespace cvdeveloper
