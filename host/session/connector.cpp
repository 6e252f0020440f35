#include "host/session/connector.h"

#include "host/errors.h"
#include "host/services/blob.h"
#include "host/services/db_ini.h"
#include "host/services/progress.h"
#include "host/services/util.h"

namespace cvdeveloper::standalone {

HostSession& Connector::session() const {
    if (!session_) {
        raise(HostError::Closed, "Es ist niemand angemeldet; zuerst Logon aufrufen.");
    }
    return *session_;
}

void Connector::Logon(std::string_view path, std::string_view user, std::string_view password) {
    session_ = HostSession::log_on(path, user, password);
    blob_ = make_object<standalone::Blob>(session_);
    util_ = make_object<standalone::Util>();
    db_ini_ = make_object<standalone::DbIni>(session_);
    progress_ = make_object<standalone::Progress>();
    if (state_) {
        state_->set(federal_state(session_->federal_state()));
    }
}

ObjectRef Connector::Util() {
    session();
    return util_;
}

ObjectRef Connector::Blob() {
    session();
    return blob_;
}

ObjectRef Connector::DbIni() {
    session();
    return db_ini_;
}

// The user has proved himself at log-on; the database knows no password of its own.
RecordSet Connector::GetRecordset(std::string_view sql, Password) {
    return session().get_record_set(sql);
}

void Connector::UpdateRecordset(RecordSet& rs, Password) {
    session().update_record_set(rs);
}

RecordSet Connector::get_record_set(std::string_view sql, const Variant&) {
    return session().get_record_set(sql);
}

void Connector::update_record_set(RecordSet& rs, const Variant&) {
    session().update_record_set(rs);
}

RecordSet Connector::CurrentUserRS() {
    return session().current_user();
}

RecordSet Connector::STDRS() {
    return session().master_data();
}

std::string Connector::ParseAndFill(RecordSet&, std::int16_t, bool&) {
    session();
    return {};
}

ObjectRef Connector::Progress() {
    session();
    return progress_;
}

host::UnitOfWork* Connector::unit_of_work() {
    return &session().unit_of_work();
}

void Connector::BeginTrans() {
    session().begin_transaction();
}

void Connector::CommitTrans() {
    session().commit_transaction();
}

void Connector::RollbackTrans() {
    session().roll_back_transaction();
}

const InterfaceTable& Connector::table() const noexcept {
    static constexpr Parameter logon_parameters[] = {
        {.name = "Path", .help = "Der Corvanta-Ordner"},
        {.name = "User", .help = "Benutzername"},
        {.name = "Password", .help = "Kennwort, ohne Unterscheidung von Groß und Klein"}};
    static constexpr Parameter get_parameters[] = {
        {.name = "SQL", .help = "Eine SELECT-Anweisung"},
        {.name = "Password", .help = "Wird nicht gebraucht", .default_value = Missing{}}};
    static constexpr Parameter update_parameters[] = {
        {.name = "RS", .help = "Ein Recordset dieser Sitzung", .direction = Direction::InOut},
        {.name = "Password", .help = "Wird nicht gebraucht", .default_value = Missing{}}};
    static constexpr Parameter parse_parameters[] = {
        {.name = "RS", .help = "Detailwerte", .direction = Direction::InOut},
        {.name = "Typ", .help = "Art der Feldart"},
        {.name = "Msg", .help = "Ob Fehler gezeigt werden", .direction = Direction::InOut}};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "Logon",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::Logon>,
         .parameters = logon_parameters,
         .help = {.what = "Opens a host folder for a user.",
                  .errors = "One sentence that says what is wrong with folder, user or password."}},
        {.id = 2,
         .name = "Util",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::Util>,
         .parameters = {},
         .help = {.what = "Keys, literals and null-tolerant conversions."}},
        {.id = 3,
         .name = "Blob",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::Blob>,
         .parameters = {},
         .help = {.what = "The attachments."}},
        {.id = 4,
         .name = "DbIni",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::DbIni>,
         .parameters = {},
         .help = {.what = "Settings kept in the database."}},
        {.id = 5,
         .name = "GetRecordset",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::get_record_set>,
         .parameters = get_parameters,
         .help = {.what = "Runs one SELECT and gives its rows.",
                  .errors = "What the database says, and the statement's beginning."}},
        {.id = 6,
         .name = "UpdateRecordset",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::update_record_set>,
         .parameters = update_parameters,
         .help = {.what = "Writes all changes of a record set, or none.",
                  .errors = "A row that somebody else has changed in between; a value that does "
                            "not fit."}},
        {.id = 7,
         .name = "CurrentUserRS",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::CurrentUserRS>,
         .parameters = {},
         .help = {.what = "The row of the user who is logged on."}},
        {.id = 8,
         .name = "STDRS",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::STDRS>,
         .parameters = {},
         .help = {.what = "The row of master data."}},
        {.id = 9,
         .name = "ParseAndFill",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::ParseAndFill>,
         .parameters = parse_parameters,
         .help = {.what = "Reads the text of detail values into their other columns."}},
        {.id = 10,
         .name = "Progress",
         .kind = OperationKind::Get,
         .binding = bind<&Connector::Progress>,
         .parameters = {},
         .help = {.what = "The connector's progress bar, always the same one."}},
        {.id = 11,
         .name = "BeginTrans",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::BeginTrans>,
         .parameters = {},
         .help = {.what = "Begins a transaction.", .errors = "There is one already."}},
        {.id = 12,
         .name = "CommitTrans",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::CommitTrans>,
         .parameters = {},
         .help = {.what = "Makes everything since BeginTrans last.", .errors = "No transaction."}},
        {.id = 13,
         .name = "RollbackTrans",
         .kind = OperationKind::Method,
         .binding = bind<&Connector::RollbackTrans>,
         .parameters = {},
         .help = {.what = "Takes back everything since BeginTrans.", .errors = "No transaction."}},
    };
    static const InterfaceTable members(automation_name, "A session without a user interface.",
                                        {{"connector", "Log-on, statements, record sets.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
