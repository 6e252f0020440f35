#include "host/services/util.h"

#include "cvdeveloper/automation/conversions.h"
#include "host/keys.h"
#include "platform/files.h"
#include "platform/regional.h"

namespace cvdeveloper::standalone {

namespace {

bool is_nothing(const Variant& value) {
    return value.is<Null>() || value.is<Empty>() || value.is<Missing>();
}

bool is_blank(const Variant& value) {
    const auto* text = value.get_if<std::string>();
    return is_nothing(value) ||
           (text != nullptr && text->find_first_not_of(' ') == std::string::npos);
}

}  // namespace

std::string Util::SqlUid(std::string_view key) {
    return literal(key);
}

Variant Util::SqlStrNull(std::string_view text) {
    return text.empty() ? Variant(Null{}) : Variant(text);
}

std::string Util::NewGUID() {
    return new_key();
}

void Util::Kill(std::string_view path) {
    files::remove_file(path);
}

// Without the dot; "" where the name has none.
std::string Util::GetFileExtender(std::string_view path) {
    const std::size_t folder = path.find_last_of("/\\");
    const std::string_view name = folder == std::string_view::npos ? path : path.substr(folder + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string() : std::string(name.substr(dot + 1));
}

std::string Util::GeneralDate(Date date) {
    return regional::general_date(date);
}

Variant Util::k(Variant value) {
    value = plain_value(std::move(value));
    return is_nothing(value) ? Variant("") : Variant(to_text(std::move(value)));
}

Variant Util::d(Variant value) {
    value = plain_value(std::move(value));
    return is_blank(value) ? 0.0 : to_double(value);
}

Variant Util::b(Variant value) {
    value = plain_value(std::move(value));
    return !is_blank(value) && to_boolean(value);
}

const InterfaceTable& Util::table() const noexcept {
    static constexpr Parameter key_parameters[] = {{.name = "Key", .help = "Ein Schlüssel (Dsn)"}};
    static constexpr Parameter text_parameters[] = {{.name = "Text", .help = "Ein Text"}};
    static constexpr Parameter path_parameters[] = {{.name = "Path", .help = "Pfad der Datei"}};
    static constexpr Parameter date_parameters[] = {{.name = "Date", .help = "Datum und Uhrzeit"}};
    static constexpr Parameter value_parameters[] = {
        {.name = "Value", .help = "Ein Feldwert, auch Null"}};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "SqlUid",
         .kind = OperationKind::Method,
         .binding = bind<&Util::SqlUid>,
         .parameters = key_parameters,
         .help = {.what = "The key as a literal of a statement, in quotes."}},
        {.id = 2,
         .name = "SqlStrNull",
         .kind = OperationKind::Method,
         .binding = bind<&Util::SqlStrNull>,
         .parameters = text_parameters,
         .help = {.what = "The text to store: null for an empty one."}},
        {.id = 3,
         .name = "NewGUID",
         .kind = OperationKind::Method,
         .binding = bind<&Util::NewGUID>,
         .parameters = {},
         .help = {.what = "A new key: 36 characters in capitals, without braces."}},
        {.id = 4,
         .name = "Kill",
         .kind = OperationKind::Method,
         .binding = bind<&Util::Kill>,
         .parameters = path_parameters,
         .help = {.what = "Deletes a file.", .errors = "53 where there is none."}},
        {.id = 5,
         .name = "GetFileExtender",
         .kind = OperationKind::Method,
         .binding = bind<&Util::GetFileExtender>,
         .parameters = path_parameters,
         .help = {.what = "What follows the last dot of a file name."}},
        {.id = 6,
         .name = "GeneralDate",
         .kind = OperationKind::Method,
         .binding = bind<&Util::GeneralDate>,
         .parameters = date_parameters,
         .help = {.what = "Date and time as people write them here."}},
        {.id = 7,
         .name = "k",
         .kind = OperationKind::Method,
         .binding = bind<&Util::text_of>,
         .parameters = value_parameters,
         .help = {.what = "The value as text; \"\" for null."}},
        {.id = 8,
         .name = "d",
         .kind = OperationKind::Method,
         .binding = bind<&Util::number_of>,
         .parameters = value_parameters,
         .help = {.what = "The value as a number; 0 for null and blank text."}},
        {.id = 9,
         .name = "b",
         .kind = OperationKind::Method,
         .binding = bind<&Util::truth_of>,
         .parameters = value_parameters,
         .help = {.what = "The value as True or False; False for null and blank text."}},
    };
    static const InterfaceTable members("Util", "Keys, literals and null-tolerant conversions.",
                                        {{"util", "Helpers of a host session.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
