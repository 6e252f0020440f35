#include "cvdeveloper/data/user_interface_bridge.h"

#include "cvdeveloper/automation/class_registry.h"
#include "data/help_texts.h"

namespace cvdeveloper {

namespace {

constexpr Parameter form_parameter{.name = "strFormName",
                                   .help = "the form's name, such as \"F_AKT\""};

constexpr Parameter parse_parameters[] = {
    {.name = "rsDets",
     .help = "record set of detail rows; what the host leaves there comes back",
     .direction = Direction::InOut},
    {.name = "typ", .help = "passed to the host as it stands", .direction = Direction::InOut},
    {.name = "bMsg",
     .help = "whether the host may show messages; what it leaves there comes back",
     .default_value = false,
     .direction = Direction::InOut},
};
constexpr Parameter find_parameters[] = {
    form_parameter,
    {.name = "strWhere", .help = "condition without WHERE; \"1=2\" shows an empty form"},
};
constexpr Parameter find_key_parameters[] = {
    form_parameter,
    {.name = "strDsn", .help = help::key_argument},
};
constexpr Parameter show_parameters[] = {form_parameter};

constexpr char application_form[] =
    "The application's form; nothing happens in a connector's session.";

constexpr Operation rows[] = {
    {.id = 20,
     .name = "CV_CreateProgress",
     .kind = OperationKind::Method,
     .binding = bind<&UserInterfaceBridge::CV_CreateProgress>,
     .parameters = {},
     .help = {.what = "A progress window: a new one in a running application, the connector's own "
                      "otherwise.",
              .result = "The host's object.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; 429 "
                        "where the component is not installed.",
              .tables = "Component clqexstdc10.cProgress, or the connector's Progress.",
              .example = "progress = app.oBase.CV_CreateProgress()"}},
    {.id = 21,
     .name = "CV_ParseAndFill",
     .kind = OperationKind::Method,
     .binding = bind<&UserInterfaceBridge::CV_ParseAndFill, parse_parameters>,
     .parameters = parse_parameters,
     .help = {.what = "Hands a record set of detail rows to the host, which reads the entered "
                      "texts and fills the value columns.",
              .result = "The host's answer.",
              .errors = help::session_and_host_errors,
              .tables = "The host's ParseAndFill.",
              .example = "app.oBase.CV_ParseAndFill(details, 1, False)"}},
    {.id = 22,
     .name = "Pane_Find",
     .kind = OperationKind::Method,
     .binding = bind<&UserInterfaceBridge::Pane_Find>,
     .parameters = find_parameters,
     .help = {.what = "Has a form find the records that fit a condition. A form that the host "
                      "does not know is passed over.",
              .errors = help::session_and_host_errors,
              .tables = application_form,
              .example = "app.oBase.Pane_Find(\"F_AD\", \"Ort = 'Essen'\")"}},
    {.id = 23,
     .name = "Pane_FindDSN",
     .kind = OperationKind::Method,
     .binding = bind<&UserInterfaceBridge::Pane_FindDSN>,
     .parameters = find_key_parameters,
     .help = {.what = "Has a form find one record and shows the form. A form that the host does "
                      "not know is passed over.",
              .errors = help::session_and_host_errors,
              .tables = application_form,
              .example = "app.oBase.Pane_FindDSN(\"F_AD\", dsn)"}},
    {.id = 24,
     .name = "Pane_Show",
     .kind = OperationKind::Method,
     .binding = bind<&UserInterfaceBridge::Pane_Show>,
     .parameters = show_parameters,
     .help = {.what = "Shows a form. A form that the host does not know is passed over.",
              .errors = help::session_and_host_errors,
              .tables = application_form,
              .example = "app.oBase.Pane_Show(\"F_AD\")"}},
};

}  // namespace

std::span<const Operation> UserInterfaceBridge::operations() noexcept {
    return rows;
}

host::Bound<host::Pane> UserInterfaceBridge::pane(std::string_view form) const {
    if (session().kind() == INITTYPE_CONNECTOR) {
        return {};
    }
    return host::Bound<host::Pane>(session().application().Panes(form));
}

ObjectRef UserInterfaceBridge::CV_CreateProgress() const {
    const GuardLock lock(&session().guard);
    if (session().kind() == INITTYPE_APPLICATION) {
        return create_object("clqexstdc10.cProgress");
    }
    return session().connector().Progress();
}

std::string UserInterfaceBridge::CV_ParseAndFill(RecordSet& rsDets, std::int16_t typ,
                                                 bool& bMsg) const {
    const GuardLock lock(&session().guard);
    return session().host().ParseAndFill(rsDets, typ, bMsg);
}

void UserInterfaceBridge::Pane_Find(std::string_view strFormName, std::string_view strWhere) const {
    const GuardLock lock(&session().guard);
    if (const auto form = pane(strFormName)) {
        form->Find(strWhere);
    }
}

void UserInterfaceBridge::Pane_FindDSN(std::string_view strFormName,
                                       std::string_view strDsn) const {
    const GuardLock lock(&session().guard);
    if (const auto form = pane(strFormName)) {
        form->FindDsn(strDsn);
        form->Show();
    }
}

void UserInterfaceBridge::Pane_Show(std::string_view strFormName) const {
    const GuardLock lock(&session().guard);
    if (const auto form = pane(strFormName)) {
        form->Show();
    }
}

}  // namespace cvdeveloper
