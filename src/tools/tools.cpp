#include "cvdeveloper/tools/tools.h"

namespace cvdeveloper {

clsTools::clsTools() : clsTools(make_object<Session>()) {}

clsTools::clsTools(Ref<Session> shared) : SessionObject(std::move(shared)) {}

const InterfaceTable& clsTools::table() const noexcept {
    static const InterfaceTable all(
        automation_name, "Formatting, texts, working days and placeholders.",
        {
            {"formatting", "Numbers, amounts and dates as people read them.", formatting_rows()},
            {"texts", "The runtime's text functions, and lists in a text.", text_rows()},
            {"calendar", "Working days.", calendar_rows()},
            {"placeholders", "Filling placeholders in texts.", placeholder_rows()},
        });
    return all;
}

}  // namespace cvdeveloper
