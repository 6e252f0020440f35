#include "host/session/connector.h"

#include "host/services/progress.h"

namespace cvdeveloper::standalone {

void Connector::Logon(std::string_view path, std::string_view user, std::string_view password) {
    attach(HostSession::log_on(path, user, password));
    progress_ = make_object<standalone::Progress>();
    if (state_) {
        state_->set(federal_state(session().federal_state()));
    }
}

ObjectRef Connector::Progress() {
    session();
    return progress_;
}

const InterfaceTable& Connector::table() const noexcept {
    static constexpr Parameter logon_parameters[] = {
        {.name = "Path", .help = "Der Corvanta-Ordner"},
        {.name = "User", .help = "Benutzername"},
        {.name = "Password", .help = "Kennwort, ohne Unterscheidung von Groß und Klein"}};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "Logon",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::Logon>,
         .parameters = logon_parameters,
         .help = {.what = "Opens a host folder for a user.",
                  .errors = "One sentence that says what is wrong with folder, user or password."}},
        {.id = 10,
         .name = "Progress",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::Progress>,
         .parameters = {},
         .help = {.what = "The connector's progress bar, always the same one."}},
    };
    static const InterfaceTable members(
        automation_name, "A session without a user interface.",
        {{"connector", "Log-on and progress.", rows},
         {"session", "Statements, record sets, transactions.", shared_operations()}});
    return members;
}

}  // namespace cvdeveloper::standalone
