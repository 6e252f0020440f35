#include "documentation.h"

namespace cvdeveloper::python {

namespace {

void add_section(std::string& text, std::string_view title, std::string_view body) {
    if (!body.empty()) {
        text.append("\n\n").append(title).append(": ").append(body);
    }
}

}  // namespace

std::string documentation(const Operation& operation) {
    std::string text(operation.help.what);
    if (!operation.parameters.empty()) {
        text.append("\n\nArguments:");
        for (const Parameter& parameter : operation.parameters) {
            text.append("\n    ").append(parameter.name);
            if (!parameter.help.empty()) {
                text.append(": ").append(parameter.help);
            }
            if (parameter.direction == Direction::InOut) {
                text.append(" (in/out: pass a Ref to get what is left there)");
            }
        }
    }
    add_section(text, "Result", operation.help.result);
    add_section(text, "Errors", operation.help.errors);
    add_section(text, "Tables", operation.help.tables);
    if (!operation.help.example.empty()) {
        text.append("\n\nExample:\n    ").append(operation.help.example);
    }
    return text;
}

}  // namespace cvdeveloper::python
