// Der erste Eintrag aus C++: anmelden, eine Aktivität anlegen, finden, ändern.

#include <cstdlib>
#include <iostream>

#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "host/register.h"

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "Aufruf: erster_eintrag ORDNER (angelegt mit: cvdev init ORDNER --sample)\n";
        return 2;
    }
    try {
        cvdeveloper::standalone::register_standalone_host();
        const auto app = cvdeveloper::make_object<cvdeveloper::Application>();
        app->Corvanta_InitConnector(words[1], "chef", "");
        if (app->Corvanta_InitType() != cvdeveloper::INITTYPE_CONNECTOR) {
            return EXIT_FAILURE;  // the reason has been shown
        }
        const std::string key = app->AKT_Create("", "Anruf von Frau Muster");
        const auto base = app->oBase();
        base->Sql_SetField("AKT", key, "Erledigt", std::int16_t{1});
        const cvdeveloper::RecordSet rs = base->Sql_FindByDSN("AKT", key);
        std::cout << cvdeveloper::to_text(rs.value("Subject"))
                  << ", erledigt: " << cvdeveloper::to_text(rs.value("Erledigt")) << "\n";
        return EXIT_SUCCESS;
    } catch (const cvdeveloper::AutomationError& error) {
        std::cerr << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
