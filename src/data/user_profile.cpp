#include "cvdeveloper/data/user_profile.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "data/help_texts.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr Parameter template_parameters[] = {
    {.name = "lngNr", .help = "number of the template, from 1"},
};

constexpr char reads_user[] = "Reads Benutzer.";

constexpr Operation rows[] = {
    {.id = 70,
     .name = "BEN_MerkmalDsnCommaList",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_MerkmalDsnCommaList>,
     .parameters = {},
     .help = {.what = "The user's standard features, which new records get.",
              .result = "Feature keys separated by \",\"; \"\" where there are none.",
              .errors = help::session_and_host_errors,
              .tables = reads_user,
              .example = "app.oBase.BEN_MerkmalDsnCommaList()"}},
    {.id = 71,
     .name = "BEN_VorlageDsnCommaList",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_VorlageDsnCommaList>,
     .parameters = {},
     .help = {.what = "The user's template features.",
              .result = "Feature keys separated by \",\"; \"\" where there are none.",
              .errors = help::session_and_host_errors,
              .tables = reads_user,
              .example = "app.oBase.BEN_VorlageDsnCommaList()"}},
    {.id = 72,
     .name = "BEN_EMailAktArt",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_EMailAktArt>,
     .parameters = {},
     .help = {.what = "The activity type of the user's e-mails.",
              .result = "A key of Aktivitätenarten, or \"\".",
              .errors = help::session_and_host_errors,
              .tables = reads_user,
              .example = "app.oBase.BEN_EMailAktArt()"}},
    {.id = 73,
     .name = "BEN_ScannerAktArt",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_ScannerAktArt>,
     .parameters = {},
     .help = {.what = "The activity type of the user's scanned documents.",
              .result = "A key of Aktivitätenarten, or \"\".",
              .errors = help::session_and_host_errors,
              .tables = reads_user,
              .example = "app.oBase.BEN_ScannerAktArt()"}},
    {.id = 74,
     .name = "BEN_Rechteschablone",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_Rechteschablone>,
     .parameters = template_parameters,
     .help = {.what = "One of the user's rights templates: what follows the first \"|\" of its "
                      "line.",
              .result = "An access-control string; \"\" where there is no such line.",
              .errors = help::session_and_host_errors,
              .tables = reads_user,
              .example = "app.oBase.BEN_Rechteschablone(2)"}},
    {.id = 75,
     .name = "BEN_StdACL",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_StdACL>,
     .parameters = {},
     .help = {.what = "The access-control string that the user's new records get: the fourth "
                      "rights template.",
              .result = "An access-control string, or \"\".",
              .errors = help::session_and_host_errors,
              .tables = reads_user,
              .example = "app.oBase.BEN_StdACL()"}},
    {.id = 76,
     .name = "BEN_Mkm",
     .kind = OperationKind::Method,
     .binding = bind<&UserProfile::BEN_Mkm>,
     .parameters = {},
     .help = {.what = "The user's own feature: the one whose Benutzer is the user's log-on name, "
                      "the first by Touch.",
              .result = "A feature key, or \"\".",
              .errors = help::session_and_host_errors,
              .tables = "Reads Benutzer and Mkm.",
              .example = "app.oBase.BEN_Mkm()"}},
};

}  // namespace

std::span<const Operation> UserProfile::operations() noexcept {
    return rows;
}

std::string UserProfile::field(std::string_view name) const {
    return session().text(Gateway(session()).CV_CurrentUserRS().value(name));
}

std::string UserProfile::five_fields(std::string_view prefix) const {
    std::string list;
    for (char digit = '1'; digit <= '5'; ++digit) {
        const std::string key = field(std::string(prefix) + digit);
        if (!key.empty()) {
            list.append(list.empty() ? "" : ",").append(key);
        }
    }
    return list;
}

std::string UserProfile::BEN_MerkmalDsnCommaList() const {
    return five_fields("STD_MKM");
}

std::string UserProfile::BEN_VorlageDsnCommaList() const {
    return five_fields("VOR_MKM");
}

std::string UserProfile::BEN_EMailAktArt() const {
    return field("FaxArt_Dsn");  // the column dates from when it was a fax
}

std::string UserProfile::BEN_ScannerAktArt() const {
    return field("ScanArt_Dsn");
}

std::string UserProfile::BEN_Rechteschablone(std::int32_t lngNr) const {
    std::string lines = field("Rechteschablonen");
    std::string line;
    for (std::int32_t number = 1; number <= lngNr && !(lines.empty() && line.empty()); ++number) {
        line = take_first(lines, "\r\n");
    }
    take_first(line, "|");
    return line;
}

std::string UserProfile::BEN_StdACL() const {
    constexpr std::int32_t standard_template = 4;
    return BEN_Rechteschablone(standard_template);
}

std::string UserProfile::BEN_Mkm() const {
    const RecordSet rs = TableOperations(session()).Sql_Find(
        "Mkm", "Benutzer='" + field("Login_Name") + "'", "Touch");
    return rs.at_end() ? std::string() : to_text(rs.value("Dsn"));
}

}  // namespace cvdeveloper
