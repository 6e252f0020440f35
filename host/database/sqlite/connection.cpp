#include "host/database/sqlite/connection.h"

#include <algorithm>
#include <array>
#include <thread>

#include "cvdeveloper/automation/error.h"
#include "host/database/sqlite/functions.h"
#include "host/database/sqlite/prepared_statement.h"
#include "host/errors.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

// So many steps of the database's machine pass before a statement counts as long: some 0.2 ms.
constexpr int steps_of_a_short_statement = 10000;

// How often a long statement asks whether the user wants to stop it.
constexpr std::chrono::milliseconds pause_between_checks(50);

// Nothing but white space and semicolons may follow a statement.
bool is_blank(std::string_view text) noexcept {
    return text.find_first_not_of(" \t\r\n\f\v;") == std::string_view::npos;
}

// The database counts its memory under a lock, for a statistic that nobody asks for: a twentieth of
// a write. Has no effect where somebody else in the process has begun to use the database.
void stop_counting_memory() {
    [[maybe_unused]] static const int result = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
}

}  // namespace

Connection::Connection(const std::string& path, const OpenOptions& options) : options_(options) {
    stop_counting_memory();
    sqlite3* opened = nullptr;
    // One thread at a time is our own rule, so the database needs no lock of its own.
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE |
                      (options.create ? SQLITE_OPEN_CREATE : 0);
    const int code = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
    handle_.reset(opened);
    if (code != SQLITE_OK) {
        raise(HostError::Folder, "Die Datenbank '" + path +
                                     "' kann nicht geöffnet werden: " + sqlite3_errstr(code) + ".");
    }
    sqlite3_busy_handler(opened, &on_busy, this);
    sqlite3_progress_handler(opened, steps_of_a_short_statement, &on_progress, this);
    sqlite3_limit(opened, SQLITE_LIMIT_ATTACHED, 0);
    // "text" is a name, never a text: a misspelt column must not turn into a value.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    install_functions(opened);
    install_access_check(opened, access_);

    run_script(
        "PRAGMA foreign_keys=OFF; PRAGMA temp_store=MEMORY; PRAGMA secure_delete=OFF;"
        "PRAGMA cache_size=-16000;");
    run_script(options.full_sync ? "PRAGMA synchronous=FULL" : "PRAGMA synchronous=OFF");
    begin_ = prepare("BEGIN IMMEDIATE", Author::Host);
    commit_ = prepare("COMMIT", Author::Host);
    rollback_ = prepare("ROLLBACK", Author::Host);
    set_savepoint_ = prepare("SAVEPOINT rows", Author::Host);
    release_savepoint_ = prepare("RELEASE rows", Author::Host);
    rollback_to_savepoint_ = prepare("ROLLBACK TO rows", Author::Host);
    read_catalog();
}

Connection::~Connection() = default;

std::unique_ptr<Statement> Connection::prepare(std::string_view text, Author author) {
    const Running running(*this, author);
    sqlite3_stmt* prepared = nullptr;
    const char* tail = nullptr;
    const int code = sqlite3_prepare_v3(handle_.get(), text.data(), static_cast<int>(text.size()),
                                        SQLITE_PREPARE_PERSISTENT, &prepared, &tail);
    PreparedStatement::Handle handle(prepared);
    if (code != SQLITE_OK) {
        raise_failure(code);
    }
    if (author == Author::Caller) {
        const auto rest = text.substr(static_cast<std::size_t>(tail - text.data()));
        if (!is_blank(rest) || prepared == nullptr || sqlite3_stmt_readonly(prepared) == 0 ||
            sqlite3_stmt_isexplain(prepared) != 0 || sqlite3_column_count(prepared) == 0) {
            raise(HostError::StatementRefused, "Erlaubt ist genau eine lesende SELECT-Anweisung.");
        }
    }
    return std::make_unique<PreparedStatement>(*this, std::move(handle), author);
}

void Connection::run_script(const std::string& script) {
    const Running running(*this, Author::Host);
    const int code = sqlite3_exec(handle_.get(), script.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        raise_failure(code);
    }
}

void Connection::use_write_ahead_log() {
    run_script("PRAGMA journal_mode=WAL");
}

void Connection::begin() {
    begin_->execute({});
}

void Connection::commit() {
    std::optional<BlockingScope> waiting;
    if (options_.full_sync) {
        waiting.emplace();
    }
    commit_->execute({});
}

void Connection::rollback() noexcept {
    try {
        rollback_->execute({});
    } catch (const std::exception&) {
        // The database has ended the transaction by itself.
        return;
    }
}

void Connection::set_savepoint() {
    set_savepoint_->execute({});
}

void Connection::release_savepoint() {
    release_savepoint_->execute({});
}

void Connection::rollback_to_savepoint() noexcept {
    try {
        rollback_to_savepoint_->execute({});
        release_savepoint_->execute({});
    } catch (const std::exception&) {
        // The savepoint went with its transaction.
        return;
    }
}

bool Connection::in_transaction() const noexcept {
    return sqlite3_get_autocommit(handle_.get()) == 0;
}

void Connection::interrupt() noexcept {
    interrupted_ = true;
    sqlite3_interrupt(handle_.get());
}

void Connection::read_catalog() {
    const auto statement = prepare(
        "SELECT t.name, c.name, c.type, c.\"notnull\", c.dflt_value FROM sqlite_schema AS t "
        "JOIN pragma_table_info(t.name) AS c WHERE t.type = 'table' AND t.name NOT LIKE 'sqlite%' "
        "ORDER BY t.rowid, c.cid",
        Author::Host);
    Rows rows(statement->columns().size());
    statement->query({}, rows);
    auto catalog = std::make_shared<Catalog>();
    for (std::size_t i = 0; i < rows.size();) {
        const std::string_view table = rows[i][0].text();
        std::vector<TableColumn> columns;
        for (; i < rows.size() && rows[i][0].text() == table; ++i) {
            const auto row = rows[i];
            columns.push_back({std::string(row[1].text()), read_declared_type(row[2].text()),
                               row[3].integer != 0, std::string(row[4].text())});
        }
        catalog->add(Table(std::string(table), std::move(columns)));
    }
    access_.catalog = catalog.get();
    catalog_ = std::move(catalog);
}

Connection::Running::Running(Connection& connection, Author author)
    : connection_(connection), before_(connection.access_.author) {
    connection.access_.author = author;
    connection.interrupted_ = false;
    connection.users_interrupt_ = nullptr;
}

Connection::Running::~Running() {
    connection_.access_.author = before_;
    connection_.long_run_.reset();
}

void Connection::give_up_interpreter_lock() {
    if (!long_run_) {
        long_run_.emplace();
    }
}

int Connection::on_progress(void* self) {
    auto& connection = *static_cast<Connection*>(self);
    connection.give_up_interpreter_lock();
    return connection.asked_to_stop() ? 1 : 0;
}

bool Connection::asked_to_stop() noexcept {
    if (const auto present = std::chrono::steady_clock::now();
        present - last_check_ >= pause_between_checks) {
        last_check_ = present;
        try {
            check_interrupt();
        } catch (const Interrupt&) {
            // Nothing may be thrown through the database: raise_failure throws it on.
            users_interrupt_ = std::current_exception();
        }
    }
    return interrupted_ || users_interrupt_ != nullptr;
}

int Connection::on_busy(void* self, int attempts) {
    using namespace std::chrono_literals;
    static constexpr std::array pauses = {0ms, 1ms, 2ms, 5ms, 10ms, 20ms, 25ms};
    auto& connection = *static_cast<Connection*>(self);
    connection.give_up_interpreter_lock();
    const auto present = std::chrono::steady_clock::now();
    if (attempts == 0) {
        connection.waiting_since_ = present;
    }
    if (connection.asked_to_stop() ||
        present - connection.waiting_since_ >= connection.options_.timeout) {
        return 0;
    }
    std::this_thread::sleep_for(
        pauses[std::min(static_cast<std::size_t>(attempts), pauses.size() - 1)]);
    return 1;
}

void Connection::raise_failure(int code) {
    const std::string message = sqlite3_errmsg(handle_.get());
    if (users_interrupt_ != nullptr) {
        std::rethrow_exception(std::exchange(users_interrupt_, nullptr));
    }
    if (interrupted_) {
        throw Interrupt();
    }
    switch (code & 0xFF) {
        case SQLITE_INTERRUPT:
            throw Interrupt();
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            raise(HostError::LockTimeout, "Die Datenbank ist seit mehr als " +
                                              std::to_string(options_.timeout.count() / 1000) +
                                              " Sekunden von anderer Seite gesperrt.");
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            raise(HostError::Database, "Die Datenbankdatei ist beschädigt: " + message + ".");
        case SQLITE_FULL:
            raise(HostError::Database, "Der Datenträger der Datenbank ist voll.");
        case SQLITE_IOERR:
        case SQLITE_CANTOPEN:
        case SQLITE_READONLY:
            raise(
                HostError::Database,
                "Die Datenbankdatei kann nicht gelesen oder geschrieben werden: " + message + ".");
        case SQLITE_CONSTRAINT:
            raise(HostError::ValueRefused,
                  "Die Datenbank lehnt den Datensatz ab: " + message + ".");
        case SQLITE_NOMEM:
            throw std::bad_alloc();
        default:
            raise(HostError::StatementRefused, "Die Datenbank lehnt ab: " + message + ".");
    }
}

}  // namespace cvdeveloper::standalone::sqlite
