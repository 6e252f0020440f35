#include "host/session/session_object.h"

#include "host/errors.h"
#include "host/services/blob.h"
#include "host/services/db_ini.h"
#include "host/services/parse_and_fill.h"
#include "host/services/util.h"

namespace cvdeveloper::standalone {

template <class Interface>
HostSession& SessionObject<Interface>::session() const {
    if (!session_) {
        raise(HostError::Closed, "Es ist niemand angemeldet; zuerst Logon aufrufen.");
    }
    return *session_;
}

template <class Interface>
void SessionObject<Interface>::attach(Ref<HostSession> session) {
    session_ = std::move(session);
    blob_ = make_object<standalone::Blob>(session_);
    util_ = make_object<standalone::Util>();
    db_ini_ = make_object<standalone::DbIni>(session_);
}

template <class Interface>
ObjectRef SessionObject<Interface>::Util() {
    session();
    return util_;
}

template <class Interface>
ObjectRef SessionObject<Interface>::Blob() {
    session();
    return blob_;
}

template <class Interface>
ObjectRef SessionObject<Interface>::DbIni() {
    session();
    return db_ini_;
}

// The user has proved himself at log-on; the database knows no password of its own.
template <class Interface>
RecordSet SessionObject<Interface>::GetRecordset(std::string_view sql, Password) {
    return session().get_record_set(sql);
}

template <class Interface>
void SessionObject<Interface>::UpdateRecordset(RecordSet& rs, Password) {
    session().update_record_set(rs);
}

template <class Interface>
RecordSet SessionObject<Interface>::get_record_set(std::string_view sql, const Variant&) {
    return session().get_record_set(sql);
}

template <class Interface>
void SessionObject<Interface>::update_record_set(RecordSet& rs, const Variant&) {
    session().update_record_set(rs);
}

template <class Interface>
RecordSet SessionObject<Interface>::CurrentUserRS() {
    return session().current_user();
}

template <class Interface>
RecordSet SessionObject<Interface>::STDRS() {
    return session().master_data();
}

template <class Interface>
std::string SessionObject<Interface>::ParseAndFill(RecordSet& rs, std::int16_t type, bool& show) {
    return parse_and_fill(session(), rs, type, show);
}

template <class Interface>
host::UnitOfWork* SessionObject<Interface>::unit_of_work() {
    return &session().unit_of_work();
}

template <class Interface>
void SessionObject<Interface>::BeginTrans() {
    session().begin_transaction();
}

template <class Interface>
void SessionObject<Interface>::CommitTrans() {
    session().commit_transaction();
}

template <class Interface>
void SessionObject<Interface>::RollbackTrans() {
    session().roll_back_transaction();
}

template <class Interface>
std::string SessionObject<Interface>::StatementStatistics() {
    const CacheStatistics seen = session().statement_statistics();
    return "Wiederverwendet " + std::to_string(seen.hits) + ", vorbereitet " +
           std::to_string(seen.misses) + ", verdrängt " + std::to_string(seen.evictions);
}

template <class Interface>
std::span<const Operation> SessionObject<Interface>::shared_operations() noexcept {
    using Self = SessionObject<Interface>;
    static constexpr Parameter get_parameters[] = {
        {.name = "SQL", .help = "Eine SELECT-Anweisung"},
        {.name = "Password", .help = "Wird nicht gebraucht", .default_value = Missing{}}};
    static constexpr Parameter update_parameters[] = {
        {.name = "RS", .help = "Ein Recordset dieser Sitzung", .direction = Direction::InOut},
        {.name = "Password", .help = "Wird nicht gebraucht", .default_value = Missing{}}};
    static constexpr Parameter parse_parameters[] = {
        {.name = "RS", .help = "Detailwerte", .direction = Direction::InOut},
        {.name = "Typ", .help = "0: alle Detailwerte; 1 bis 7: nur die von Feldarten dieses Typs"},
        {.name = "Msg",
         .help = "Ob gezeigt wird, was nicht gelesen werden konnte",
         .direction = Direction::InOut}};
    static constexpr Operation rows[] = {
        {.id = 2,
         .name = "Util",
         .kind = OperationKind::Get,
         .binding = bind<&Self::Util>,
         .parameters = {},
         .help = {.what = "Keys, literals and null-tolerant conversions."}},
        {.id = 3,
         .name = "Blob",
         .kind = OperationKind::Get,
         .binding = bind<&Self::Blob>,
         .parameters = {},
         .help = {.what = "The attachments."}},
        {.id = 4,
         .name = "DbIni",
         .kind = OperationKind::Get,
         .binding = bind<&Self::DbIni>,
         .parameters = {},
         .help = {.what = "Settings kept in the database."}},
        {.id = 5,
         .name = "GetRecordset",
         .kind = OperationKind::Method,
         .binding = bind<&Self::get_record_set>,
         .parameters = get_parameters,
         .help = {.what = "Runs one SELECT and gives its rows.",
                  .errors = "What the database says, and the statement's beginning."}},
        {.id = 6,
         .name = "UpdateRecordset",
         .kind = OperationKind::Method,
         .binding = bind<&Self::update_record_set>,
         .parameters = update_parameters,
         .help = {.what = "Writes all changes of a record set, or none.",
                  .errors = "A row that somebody else has changed in between; a value that does "
                            "not fit."}},
        {.id = 7,
         .name = "CurrentUserRS",
         .kind = OperationKind::Get,
         .binding = bind<&Self::CurrentUserRS>,
         .parameters = {},
         .help = {.what = "The row of the user who is logged on."}},
        {.id = 8,
         .name = "STDRS",
         .kind = OperationKind::Get,
         .binding = bind<&Self::STDRS>,
         .parameters = {},
         .help = {.what = "The row of master data."}},
        {.id = 9,
         .name = "ParseAndFill",
         .kind = OperationKind::Method,
         .binding = bind<&Self::ParseAndFill>,
         .parameters = parse_parameters,
         .help = {.what = "Reads the text of detail values into their other columns, as their "
                          "field kinds mean it; does not save.",
                  .result = "What could not be read, a line for each row: the field kind's short "
                            "name and the text.",
                  .errors = "3265 where the record set lacks a column of detail values.",
                  .tables = "FldArt, FldArtOp and AD are read.",
                  .example = "offen = app.oBase.CV_ParseAndFill(details, 0)"}},
        {.id = 11,
         .name = "BeginTrans",
         .kind = OperationKind::Method,
         .binding = bind<&Self::BeginTrans>,
         .parameters = {},
         .help = {.what = "Begins a transaction.", .errors = "There is one already."}},
        {.id = 12,
         .name = "CommitTrans",
         .kind = OperationKind::Method,
         .binding = bind<&Self::CommitTrans>,
         .parameters = {},
         .help = {.what = "Makes everything since BeginTrans last.", .errors = "No transaction."}},
        {.id = 13,
         .name = "RollbackTrans",
         .kind = OperationKind::Method,
         .binding = bind<&Self::RollbackTrans>,
         .parameters = {},
         .help = {.what = "Takes back everything since BeginTrans.", .errors = "No transaction."}},
        {.id = 30,
         .name = "StatementStatistics",
         .kind = OperationKind::Get,
         .binding = bind<&Self::StatementStatistics>,
         .parameters = {},
         .help = {.what = "How many statements of this session found one prepared already, how "
                          "many had to be prepared, and how many prepared ones made room."}},
    };
    return rows;
}

template class SessionObject<host::Connector>;
template class SessionObject<host::Application>;

}  // namespace cvdeveloper::standalone
