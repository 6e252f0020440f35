#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/tools/tools.h"
#include "platform/clock.h"
#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper {
namespace {

constexpr std::int32_t not_offered = -2147221403;
constexpr std::int32_t first_build_with_placeholders = 133;

constexpr char placeholder_errors[] =
    "-2147221403, source GetSinglePlatzhalter, for a placeholder of the host outside a running "
    "application and in one before build 133; 601 for JETZT without a session; the host's own "
    "errors.";
constexpr char placeholder_sources[] =
    "Util.GeneralDate for JETZT; the application's VersionBuild and Get_Platzhalter.";

constexpr Parameter text_parameters[] = {
    {.name = "strText", .help = "text with placeholders in braces"},
    {.name = "rs", .help = "record set whose fields the host's placeholders show"},
    {.name = "strSQL", .help = "statement handed to the host with each placeholder"},
    {.name = "blnHtml",
     .help = "whether CR LF in a value becomes \"<br>\"",
     .default_value = false},
    {.name = "strDefault", .help = "what stands for an empty value", .default_value = ""},
};
// The last two are passed by reference in the interface and never changed.
constexpr Parameter placeholder_parameters[] = {
    {.name = "strPlatzhalter",
     .help = "the name without braces; case does not matter for JETZT "
             "and HEUTE"},
    {.name = "rs", .help = "record set whose fields the host's placeholders show"},
    {.name = "strSQL", .help = "statement handed to the host"},
    {.name = "blnHtml",
     .help = "whether CR LF in the value becomes \"<br>\"; only read",
     .default_value = false,
     .direction = Direction::InOut},
    {.name = "strDefault",
     .help = "what stands for an empty value; only read",
     .default_value = "",
     .direction = Direction::InOut},
};

constexpr Operation rows[] = {
    {.id = 10,
     .name = "ReplacePlatzhalter",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::ReplacePlatzhalter>,
     .parameters = text_parameters,
     .help = {.what = "Replaces each {NAME} in a text by GetSinglePlatzhalter. A blank or a "
                      "carriage return inside braces makes them ordinary text; a brace still open "
                      "at the end is dropped with what follows it.",
              .result = "The text with its values.",
              .errors = placeholder_errors,
              .tables = placeholder_sources,
              .example = "tools.ReplacePlatzhalter(\"Essen, den {HEUTE}\", None, \"\")"}},
    {.id = 11,
     .name = "GetSinglePlatzhalter",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::GetSinglePlatzhalter, placeholder_parameters>,
     .parameters = placeholder_parameters,
     .help = {.what = "The value of one placeholder: JETZT is date and time, HEUTE the short date, "
                      "anything else is asked of the running application.",
              .result = "The value; strDefault for an empty one.",
              .errors = placeholder_errors,
              .tables = placeholder_sources,
              .example = "tools.GetSinglePlatzhalter(\"HEUTE\", None, \"\")"}},
    {.id = 12,
     .name = "GetLandRS",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::GetLandRS>,
     .parameters = {},
     .help = {.what = "The countries of the host's postcode tables, by name.",
              .result = "A record set with Id, Land, LandKurz, Vorwahl.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "host's own errors.",
              .tables = "Reads postplz, postorte.",
              .example = "rs = tools.GetLandRS()"}},
};

[[noreturn]] void raise_not_offered(std::string_view description) {
    throw AutomationError(not_offered, "GetSinglePlatzhalter", std::string(description));
}

std::string value_of_host(Session& session, const RecordSet& rs, std::string_view name,
                          std::string_view sql) {
    if (session.kind() != INITTYPE_APPLICATION) {
        raise_not_offered(
            "Die Funktion 'GetSinglePlatzhalter' steht in der Connectorinitialisierung nicht zur "
            "Verfügung");
    }
    host::Application& application = session.application();
    if (application.VersionBuild() < first_build_with_placeholders) {
        raise_not_offered("Die Funktion 'GetSinglePlatzhalter' benötigt mind. Corvanta Build133");
    }
    return application.Get_Platzhalter(rs, name, sql);
}

}  // namespace

std::span<const Operation> clsTools::placeholder_rows() noexcept {
    return rows;
}

std::string clsTools::ReplacePlatzhalter(std::string_view strText, const RecordSet& rs,
                                         std::string_view strSQL, bool blnHtml,
                                         std::string_view strDefault) {
    std::string result;
    std::string pending;  // from the open brace on
    bool open = false;
    for (const char c : strText) {
        if (open && (c == ' ' || c == '\r')) {
            result += pending;
            pending.clear();
            open = false;
        }
        if (open && c == '}') {
            const std::string_view name = std::string_view(pending).substr(1);
            result += GetSinglePlatzhalter(name, rs, strSQL, blnHtml, strDefault);
            pending.clear();
            open = false;
        } else if (open || c == '{') {
            open = true;
            pending += c;
        } else {
            result += c;
        }
    }
    return result;
}

std::string clsTools::GetSinglePlatzhalter(std::string_view strPlatzhalter, const RecordSet& rs,
                                           std::string_view strSQL, bool blnHtml,
                                           std::string_view strDefault) {
    const std::string name = upper_case(strPlatzhalter);
    std::string value;
    if (name == "JETZT") {
        value = session().util().GeneralDate(now());
    } else if (name == "HEUTE") {
        value = regional::format_date(now(), regional::DateFormat::ShortDate);
    } else {
        value = value_of_host(session(), rs, strPlatzhalter, strSQL);
    }
    if (blnHtml) {
        value = replace_all(value, "\r\n", "<br>");
    }
    return value.empty() ? std::string(strDefault) : value;
}

RecordSet clsTools::GetLandRS() {
    return Gateway{session()}.CV_GetRecordset(
        "SELECT RIGHT(postorte.alort,4) AS Id, postorte.oname AS Land, postorte.ozusatz AS "
        "LandKurz, postplz.vorwahl As Vorwahl FROM postplz INNER JOIN postorte ON postplz.alort = "
        "postorte.alort WHERE postorte.alort LIKE 'land%' ORDER BY postorte.oname ");
}

}  // namespace cvdeveloper
