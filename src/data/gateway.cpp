#include "cvdeveloper/data/gateway.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/diagnostic_log.h"
#include "data/help_texts.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::string_view no_password = "[NOTHING]";

constexpr Parameter sql_parameters[] = {
    {.name = "strSQL", .help = "the statement, sent as it stands"},
};
constexpr Parameter update_parameters[] = {
    {.name = "rs",
     .help = "the changed record set; what the host leaves there comes back",
     .direction = Direction::InOut},
};
constexpr Parameter password_parameters[] = {
    {.name = "strNewDBPassword", .help = "the password; an empty one is a password too"},
};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "CV_GetRecordset",
     .kind = OperationKind::Method,
     .binding = bind<&Gateway::CV_GetRecordset>,
     .parameters = sql_parameters,
     .help = {.what = "Sends a statement to the host and gives back its record set. Every empty "
                      "result is logged; with FlagSqlLog every statement is.",
              .result = "The host's record set; nothing after an error that FlagSqlLog swallowed.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "host's own errors, unless FlagSqlLog is set.",
              .tables = "Whatever the statement names.",
              .example = "rs = app.oBase.CV_GetRecordset(\"SELECT Name FROM AD\")"}},
    {.id = 2,
     .name = "CV_UpdateRecordset",
     .kind = OperationKind::Method,
     .binding = bind<&Gateway::CV_UpdateRecordset>,
     .parameters = update_parameters,
     .help = {.what = "Hands a changed record set to the host to be written. With FlagSqlLog the "
                      "current row is logged first.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "host's own errors, unless FlagSqlLog is set.",
              .tables = "The record set's table.",
              .example = "app.oBase.CV_UpdateRecordset(rs)"}},
    {.id = 3,
     .name = "CV_CurrentUserRS",
     .kind = OperationKind::Method,
     .binding = bind<&Gateway::CV_CurrentUserRS>,
     .parameters = {},
     .help = {.what = "The logged-on user's row.",
              .result = "A record set of one row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Benutzer.",
              .example = "app.oBase.CV_CurrentUserRS()[\"Login_Name\"]"}},
    {.id = 4,
     .name = "CV_STDRS",
     .kind = OperationKind::Method,
     .binding = bind<&Gateway::CV_STDRS>,
     .parameters = {},
     .help = {.what = "The master-data row.",
              .result = "A record set of one row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std.",
              .example = "app.oBase.CV_STDRS()[\"Währung\"]"}},
    {.id = 5,
     .name = "SetDBPassword",
     .kind = OperationKind::Method,
     .binding = bind<&Gateway::SetDBPassword>,
     .parameters = password_parameters,
     .help = {.what = "Keeps a database password, which every later statement and every written "
                      "record set passes to the host. Attaching a session drops it.",
              .errors = "None.",
              .example = "app.oBase.SetDBPassword(\"geheim\")"}},
    {.id = 6,
     .name = "ResetDBPassword",
     .kind = OperationKind::Method,
     .binding = bind<&Gateway::ResetDBPassword>,
     .parameters = {},
     .help = {.what = "Drops the database password: the host is called without one again.",
              .errors = "None.",
              .example = "app.oBase.ResetDBPassword()"}},
};

}  // namespace

std::span<const Operation> Gateway::operations() noexcept {
    return rows;
}

host::Session::Password Gateway::password() const {
    return session().database_password;
}

RecordSet Gateway::CV_GetRecordset(std::string_view strSQL) const {
    const GuardLock lock(&session().guard);
    const DiagnosticLog log(session());
    const bool trap = session().sql_log;
    if (trap) {
        log.DoLog("GetRecordset", strSQL);
    }
    host::Session& host = session().host();
    RecordSet rs;
    try {
        rs = host.GetRecordset(strSQL, password());
        if (rs.at_end()) {
            log.DoLog("EOF=true in ", joined({"SQL: ", strSQL}));
        }
    } catch (const AutomationError& error) {
        if (!trap) {
            throw;
        }
        log.DoLog("ERROR GetRecordset", error.description() + "| SQL: " + std::string(strSQL));
    }
    return rs;
}

void Gateway::CV_UpdateRecordset(RecordSet& rs) const {
    const GuardLock lock(&session().guard);
    const DiagnosticLog log(session());
    const bool trap = session().sql_log;
    if (trap) {
        log.DoLog("UpdateRecordset", dump_row(rs));
    }
    host::Session& host = session().host();
    try {
        host.UpdateRecordset(rs, password());
    } catch (const AutomationError& error) {
        if (!trap) {
            throw;
        }
        // The log has always named this line so; readers of the log search for it.
        log.DoLog("ERROR GetRecordset", error.description() + " | RS: " + dump_row(rs));
    }
}

RecordSet Gateway::CV_CurrentUserRS() const {
    const GuardLock lock(&session().guard);
    return session().host().CurrentUserRS();
}

RecordSet Gateway::CV_STDRS() const {
    const GuardLock lock(&session().guard);
    return session().host().STDRS();
}

void Gateway::SetDBPassword(std::string_view strNewDBPassword) const {
    if (strNewDBPassword == no_password) {
        session().database_password.reset();
    } else {
        session().database_password = strNewDBPassword;
    }
}

void Gateway::ResetDBPassword() const {
    session().database_password.reset();
}

std::string dump_row(const RecordSet& rs) {
    if (!rs) {
        return "Is Nothing";
    }
    constexpr std::string_view line_start = "\r\n                      ";
    std::string dump;
    std::int32_t count = 0;
    try {
        count = rs.field_count();
    } catch (const AutomationError&) {
        return dump;
    }
    for (std::int32_t position = 0; position < count; ++position) {
        try {
            Variant value = rs.value_at(position);
            if (value.is<Null>()) {
                continue;
            }
            const std::string text = replace_all(to_text(std::move(value)), "\r\n", " ");
            if (const std::string_view trimmed = trim_blanks(text); !trimmed.empty()) {
                dump.append(line_start).append(rs.field_name(position));
                dump.append(" = ").append(trimmed);
            }
        } catch (const AutomationError&) {
            continue;  // a field that cannot be shown must not hide the others
        }
    }
    return dump;
}

}  // namespace cvdeveloper
