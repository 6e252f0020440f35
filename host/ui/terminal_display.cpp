#include <ostream>
#include <string>

#include "cvdeveloper/automation/conversions.h"
#include "host/ui/display.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

// Line breaks and what else a terminal would act upon become something to read.
std::string one_line(std::string_view text) {
    std::string line = replace_all(text, "\r\n", " / ");
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            c = ' ';
        }
    }
    return line;
}

std::string shown(const Variant& value) {
    if (value.is<Null>() || value.is<Empty>()) {
        return {};
    }
    if (const auto* bytes = value.get_if<Bytes>()) {
        return bytes->empty() ? std::string() : "(" + std::to_string(bytes->size()) + " Bytes)";
    }
    return one_line(to_text(value));
}

std::string heading(std::int32_t found) {
    switch (found) {
        case 0:
            return "Kein Datensatz gefunden.";
        case 1:
            return "Ein Datensatz gefunden:";
        default:
            return std::to_string(found) + " Datensätze gefunden, der erste:";
    }
}

}  // namespace

void TerminalDisplay::show(const Page& page) {
    terminal_ << "Formular " << page.form << '\n'
              << "Bedingung: " << (page.condition.empty() ? "alle" : one_line(page.condition))
              << '\n'
              << heading(page.found) << '\n';
    if (page.found > 0) {
        for (std::int32_t i = 0; i < page.record.field_count(); ++i) {
            if (const std::string value = shown(page.record.value_at(i)); !value.empty()) {
                terminal_ << "  " << page.record.field_name(i) << " = " << value << '\n';
            }
        }
    }
    terminal_.flush();
}

}  // namespace cvdeveloper::standalone
