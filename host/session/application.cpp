#include "host/session/application.h"

#include <iostream>

#include "cvdeveloper/automation/class_registry.h"
#include "host/services/placeholders.h"
#include "host/ui/pane.h"

namespace cvdeveloper::standalone {

namespace {

// The first build of the host that has everything this one has.
constexpr std::int32_t version_build = 133;

}  // namespace

Application::Application(Ref<HostSession> session, std::shared_ptr<Display> display)
    : shared_session_(session), display_(std::move(display)) {
    attach(std::move(session));
}

bool Application::IsLoggedIn() {
    return true;
}

std::string Application::Folder() {
    std::string_view path = session().folder().path();
    while (path.size() > 1 && (path.ends_with('\\') || path.ends_with('/'))) {
        path.remove_suffix(1);
    }
    return std::string(path);
}

std::int32_t Application::VersionBuild() {
    return version_build;
}

ObjectRef Application::Panes(std::string_view form) {
    const GuardLock lock(session().guard());
    const Table* const table_of_pane = table_of_form(session(), form);
    if (table_of_pane == nullptr) {
        return nullptr;
    }
    ObjectRef& pane = panes_[table_of_pane->name()];
    if (!pane) {
        pane = make_object<Pane>(shared_session_, *table_of_pane, display_);
    }
    return pane;
}

std::string Application::Get_Platzhalter(const RecordSet& rs, std::string_view name,
                                         std::string_view sql) {
    return placeholder_value(session(), rs, name, sql);
}

const InterfaceTable& Application::table() const noexcept {
    static constexpr Parameter panes_parameters[] = {
        {.name = "FormName", .help = "\"F_\" und der Name der Tabelle"}};
    static constexpr Parameter placeholder_parameters[] = {
        {.name = "RS", .help = "Der Datensatz des Briefes, oder Nothing"},
        {.name = "Name", .help = "Der Platzhalter ohne Klammern, in beliebiger Schreibung"},
        {.name = "SQL", .help = "Eine SELECT-Anweisung für weitere Felder, oder leer"}};
    static constexpr Operation rows[] = {
        {.id = 14,
         .name = "IsLoggedIn",
         .kind = OperationKind::Get,
         .binding = bind<&Application::IsLoggedIn>,
         .parameters = {},
         .help = {.what = "Whether a user is logged on."}},
        {.id = 15,
         .name = "Folder",
         .kind = OperationKind::Get,
         .binding = bind<&Application::Folder>,
         .parameters = {},
         .help = {.what = "The host folder."}},
        {.id = 16,
         .name = "VersionBuild",
         .kind = OperationKind::Get,
         .binding = bind<&Application::VersionBuild>,
         .parameters = {},
         .help = {.what = "The build of the host."}},
        {.id = 17,
         .name = "Panes",
         .kind = OperationKind::Get,
         .binding = bind<&Application::Panes>,
         .parameters = panes_parameters,
         .help = {.what = "The form of a table.",
                  .result = "The pane, the same each time; nothing for an unknown form.",
                  .example = "host.Panes(\"F_AD\").Show()"}},
        {.id = 18,
         .name = "Get_Platzhalter",
         .kind = OperationKind::Method,
         .binding = bind<&Application::Get_Platzhalter>,
         .parameters = placeholder_parameters,
         .help = {.what = "The value of a letter's placeholder: a field of the record, else of the "
                          "statement's first row, else \"\".",
                  .result = "The value as text in the regional form.",
                  .errors = "What the database says of the statement.",
                  .example = "host.Get_Platzhalter(adresse, \"ORT\", \"\")"}},
    };
    static const InterfaceTable members(
        automation_name, "A running application with a user logged on.",
        {{"running_application", "Log-on, forms and placeholders.", rows},
         {"session", "Statements, record sets, transactions.", shared_operations()}});
    return members;
}

Ref<Application> start_application(std::string_view folder, std::string_view user,
                                   std::string_view password, std::shared_ptr<Display> display) {
    if (display == nullptr) {
        display = std::make_shared<TerminalDisplay>(std::cout);
    }
    auto application =
        make_object<Application>(HostSession::log_on(folder, user, password), std::move(display));
    register_active_object(Application::automation_name, application);
    return application;
}

}  // namespace cvdeveloper::standalone
