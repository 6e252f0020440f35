#include "host/session/host_session.h"

#include <array>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "host/errors.h"
#include "host/rules/address_rule.h"
#include "host/session/log_on.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

// Statements of the same shape share one entry; scripts have some dozens of shapes.
constexpr std::size_t cached_statements = 500;

sql::ColumnKind kind_of(ColumnType type) noexcept {
    switch (type) {
        case ColumnType::Text:
        case ColumnType::LongText:
            return sql::ColumnKind::Text;
        case ColumnType::Date:
            return sql::ColumnKind::Date;
        default:
            return sql::ColumnKind::Other;
    }
}

sql::Dictionary dictionary_of(const Catalog& catalog) {
    sql::Dictionary dictionary;
    for (const auto& table : catalog.tables()) {
        dictionary.add_table(table->name());
        for (const TableColumn& column : table->columns()) {
            dictionary.add_column(column.name, kind_of(column.type.type));
        }
    }
    return dictionary;
}

// Whether a column of a result is one of Std's counters.
bool is_counter(const Column& column) {
    constexpr std::string_view prefix = "Kennung_";
    return column.table != nullptr && sql::equal_names(column.table->name(), "Std") &&
           sql::equal_names(column.name_in_table().substr(0, prefix.size()), prefix);
}

}  // namespace

Ref<HostSession> HostSession::log_on(std::string_view path, std::string_view user,
                                     std::string_view password) {
    HostFolder folder = HostFolder::open(path);
    std::unique_ptr<Database> database = folder.open_database();
    std::string user_key = check_logon(*database, folder.log(), user, password);
    auto session =
        make_object<HostSession>(std::move(folder), std::move(database), std::move(user_key));
    session->clean_up();
    return session;
}

HostSession::HostSession(HostFolder folder, std::unique_ptr<Database> database,
                         std::string user_key)
    : folder_(std::move(folder)),
      database_(std::move(database)),
      catalog_(database_->catalog()),
      user_key_(std::move(user_key)),
      owner_(std::make_shared<RecordSetOwner>()),
      dictionary_(dictionary_of(*catalog_)),
      reader_(dictionary_),
      by_fingerprint_(cached_statements),
      by_text_(cached_statements),
      transactions_(*database_, [this] { attachments_.settle(); }),
      attachments_(*database_, transactions_, paths::to_system(folder_.path()) / "Anlagen"),
      writer_(*database_, table_rules(*database_)),
      numbers_(*database_, folder_.settings().number_digits) {}

// Nobody is kept from working by what another session has left behind.
void HostSession::clean_up() {
    try {
        attachments_.clean_up();
    } catch (const AutomationError&) {
        return;
    }
}

void HostSession::Unit::enter() {
    const GuardLock lock(session_.guard());
    session_.guard()->lock();
    session_.transactions_.enter();
}

void HostSession::Unit::leave() {
    const std::unique_lock lock(*session_.guard(), std::adopt_lock);
    session_.transactions_.leave();
}

RecordSet HostSession::get_record_set(std::string_view sql) {
    const GuardLock lock(guard());
    try {
        const bool has_fingerprint = fingerprint_.take(sql);
        Statements::Entry* const known =
            has_fingerprint ? by_fingerprint_.find(fingerprint_.text()) : nullptr;
        if (known == nullptr) {
            return read_and_run(sql, has_fingerprint);
        }
        values_ = known->beside.values;
        auto literal = fingerprint_.literals().begin();
        for (Value& value : values_) {
            if (auto* const text = std::get_if<std::string_view>(&value)) {
                *text = *literal++;
            }
        }
        return run(*known, values_);
    } catch (const AutomationError& error) {
        throw error.with_note(" Anweisung: " + std::string(quoted_part(sql)));
    }
}

RecordSet HostSession::read_and_run(std::string_view sql, bool has_fingerprint) {
    const sql::ReadStatement& read = reader_.read(sql);
    if (!read.broken.empty()) {
        raise(HostError::StatementRefused,
              "Ein Anführungszeichen oder Kommentar ist nicht "
              "geschlossen: " +
                  std::string(quoted_part(read.broken)));
    }
    if (!has_fingerprint || !read.same_for_all_texts) {
        return run(by_text_.get(read.text, [&] { return prepare(read); }), read.values);
    }
    Statements::Entry made = prepare(read);
    made.beside.values = read.values;
    return run(by_fingerprint_.add(fingerprint_.text(), std::move(made)), read.values);
}

// For the host's own statements.
RecordSet HostSession::run_own(std::string_view text, std::span<const Value> values) {
    return run(by_text_.get(text, [&] { return prepare(text, values.size(), {}); }), values);
}

RecordSet HostSession::run(Statements::Entry& entry, std::span<const Value> values) {
    const Read& read = entry.beside;
    Rows rows(read.shape->columns().size(), owner_->blocks);
    if (!read.has_no_rows) {
        entry.statement->query(values, rows);
    }
    if (!read.counters.empty()) {
        fill_in_numbers(read, rows);
    }
    const auto record_set = make_object<ClientRecordSet>(read.shape, std::move(rows));
    return {record_set, *record_set};
}

HostSession::Statements::Entry HostSession::prepare(const sql::ReadStatement& statement) {
    Statements::Entry entry =
        prepare(statement.text, statement.values.size(), statement.date_results);
    // "WHERE 1=2" has no rows; an expression such as count(*) would still give one.
    entry.beside.has_no_rows = statement.never_true && entry.beside.shape->all_from_tables();
    entry.beside.takes_numbers = statement.asks_for_number;
    return entry;
}

HostSession::Statements::Entry HostSession::prepare(std::string_view text, std::size_t values,
                                                    std::span<const std::size_t> dates) {
    std::unique_ptr<Statement> statement = database_->prepare(text, Author::Caller);
    if (statement->parameter_count() != values) {
        raise(HostError::StatementRefused, "Platzhalter ohne Wert sind nicht erlaubt.");
    }
    Read read{.shape = std::make_shared<Shape>(statement->columns(), dates, catalog_, owner_),
              .counters = {},
              .values = {}};
    for (std::size_t i = 0; i < read.shape->columns().size(); ++i) {
        if (is_counter(read.shape->columns()[i])) {
            read.counters.push_back(i);
        }
    }
    return {std::move(statement), std::move(read)};
}

// Reading a counter by its name takes the next number; SELECT * shows the last one.
void HostSession::fill_in_numbers(const Read& read, Rows& rows) {
    const auto fill = [&] {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const std::span<Cell> cells = rows.edit(row);
            for (const std::size_t column : read.counters) {
                const std::string& counter = read.shape->columns()[column].name_in_table();
                rows.set_text(cells[column],
                              read.takes_numbers ? numbers_.take(counter) : numbers_.last(counter));
            }
        }
    };
    if (read.takes_numbers && rows.size() > 0) {
        transactions_.run_in_any(fill);
    } else {
        fill();
    }
}

void HostSession::update_record_set(const RecordSet& record_set) {
    const GuardLock lock(guard());
    if (!record_set) {
        raise(RuntimeError::ObjectNotSet, "UpdateRecordset");
    }
    auto* const rows = dynamic_cast<ClientRecordSet*>(record_set.object().get());
    if (rows == nullptr || rows->shape().owner() != owner_) {
        raise(HostError::NotUpdatable,
              "Das Recordset stammt nicht aus dieser Sitzung und kann nicht geschrieben werden.");
    }
    if (rows->changes().empty()) {
        return;
    }
    SavedChanges saved;
    const auto write = [&] { saved = writer_.write(*rows); };
    if (writer_.is_single_statement(*rows) || !writer_.only_adds(*rows)) {
        transactions_.run(writer_.is_single_statement(*rows), write);
    } else {
        transactions_.run(write, [&] { writer_.take_back(*rows); });
    }
    rows->mark_saved(saved);
}

RecordSet HostSession::current_user() {
    const GuardLock lock(guard());
    const Value key = std::string_view(user_key_);
    return run_own("SELECT * FROM Benutzer WHERE DSN=?", {&key, 1});
}

RecordSet HostSession::master_data() {
    const GuardLock lock(guard());
    return run_own("SELECT * FROM Std", {});
}

std::string HostSession::federal_state() {
    const GuardLock lock(guard());
    Rows found(1);
    database_->prepare("SELECT Bundesland FROM Std LIMIT 1", Author::Host)->query({}, found);
    return std::string(found.size() == 0 || found[0][0].is_null() ? std::string_view()
                                                                  : found[0][0].text());
}

void HostSession::begin_transaction() {
    const GuardLock lock(guard());
    transactions_.begin();
}

void HostSession::commit_transaction() {
    const GuardLock lock(guard());
    transactions_.commit();
}

void HostSession::roll_back_transaction() {
    const GuardLock lock(guard());
    transactions_.rollback();
}

std::string HostSession::setting(std::string_view section, std::string_view key,
                                 std::string_view default_value) {
    const GuardLock lock(guard());
    const std::array<Value, 2> values = {section, key};
    Rows found(1);
    database_->prepare("SELECT value FROM cv_setting WHERE section=? AND key=?", Author::Host)
        ->query(values, found);
    if (found.size() == 0 || found[0][0].is_null()) {
        return std::string(default_value);
    }
    return std::string(found[0][0].text());
}

void HostSession::set_setting(std::string_view section, std::string_view key,
                              std::string_view value) {
    const GuardLock lock(guard());
    const std::array<Value, 3> values = {section, key, value};
    const auto statement = database_->prepare(
        "INSERT OR REPLACE INTO cv_setting (section, key, value) VALUES (?, ?, ?)", Author::Host);
    transactions_.run(true, [&] { statement->execute(values); });
}

}  // namespace cvdeveloper::standalone
