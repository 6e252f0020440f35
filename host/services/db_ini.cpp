#include "host/services/db_ini.h"

namespace cvdeveloper::standalone {

std::string DbIni::get_value(std::string_view section, std::string_view key,
                             std::string_view default_value) {
    return session_->setting(section, key, default_value);
}

void DbIni::set_value(std::string_view section, std::string_view key, std::string_view value) {
    session_->set_setting(section, key, value);
}

const InterfaceTable& DbIni::table() const noexcept {
    static constexpr Parameter get_parameters[] = {
        {.name = "Section", .help = "Abschnitt"},
        {.name = "Key", .help = "Schlüssel"},
        {.name = "Default", .help = "Ergebnis, wenn nichts gespeichert ist", .default_value = ""}};
    static constexpr Parameter set_parameters[] = {{.name = "Section", .help = "Abschnitt"},
                                                   {.name = "Key", .help = "Schlüssel"},
                                                   {.name = "Value", .help = "Der neue Wert"}};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "GetValue",
         .kind = OperationKind::Method,
         .binding = bind<&DbIni::get_value>,
         .parameters = get_parameters,
         .help = {.what = "Reads a setting."}},
        {.id = 2,
         .name = "SetValue",
         .kind = OperationKind::Method,
         .binding = bind<&DbIni::set_value>,
         .parameters = set_parameters,
         .help = {.what = "Stores a setting."}},
    };
    static const InterfaceTable members("DbIni", "Settings kept in the database.",
                                        {{"dbini", "Settings by section and key.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
