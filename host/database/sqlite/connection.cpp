#include "host/database/sqlite/connection.h"

#include <algorithm>
#include <array>
#include <thread>

#include "cvdeveloper/automation/error.h"
#include "host/database/sqlite/backup_database.h"
#include "host/database/sqlite/functions.h"
#include "host/database/sqlite/memory_files.h"
#include "host/database/sqlite/prepared_statement.h"
#include "host/database/sqlite/system_error.h"
#include "host/errors.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

// So many steps of the database's machine pass before a statement counts as long: some 0.2 ms.
constexpr int steps_of_a_short_statement = 10000;

// How often a long statement asks whether the user wants to stop it.
constexpr std::chrono::milliseconds pause_between_checks(50);

constexpr std::string_view name_of(Sync sync) noexcept {
    switch (sync) {
        case Sync::EachCommit:
            return "FULL";
        case Sync::Checkpoints:
            return "NORMAL";
        case Sync::Never:
            return "OFF";
    }
    return "FULL";
}

// So many pages of the write-ahead log go to the file at once where each commit reaches the disk:
// 16 MB, as many as are kept in memory. It takes two waits for the disk and writes each page once,
// however often it has changed.
constexpr int pages_of_the_log = 4000;

std::string seconds(std::chrono::milliseconds time) {
    const auto count = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    return std::to_string(count) + (count == 1 ? " Sekunde" : " Sekunden");
}

// The database's own code hides some causes; the system has the last word.
HostError kind_of_failure(int code, int system_error) {
    switch (code & 0xFF) {
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return HostError::Damaged;
        case SQLITE_FULL:
            return HostError::DiskFull;
        case SQLITE_PERM:
        case SQLITE_READONLY:
            return HostError::NoRights;
        default:
            break;
    }
    if (is_disk_full(system_error)) {
        return HostError::DiskFull;
    }
    return is_missing_right(system_error) ? HostError::NoRights : HostError::Database;
}

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

Connection::Connection(const std::string& path, const OpenOptions& options)
    : path_(path), options_(options) {
    stop_counting_memory();
    sqlite3* opened = nullptr;
    // One thread at a time is our own rule, so the database needs no lock of its own.
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE |
                      (options.create ? SQLITE_OPEN_CREATE : 0);
    const int code = sqlite3_open_v2(path.c_str(), &opened, flags, file_system_with_memory_files());
    handle_.reset(opened);
    if (code != SQLITE_OK) {
        raise_file_failure(code, sqlite3_errstr(code));
    }
    // The database would open a file that it may only read, and fail at the first write.
    if (sqlite3_db_readonly(opened, "main") == 1) {
        raise_file_failure(SQLITE_READONLY, sqlite3_errstr(SQLITE_READONLY));
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

    // Temporary files are ours, in memory: what the database itself keeps there it sorts in one
    // piece, which nothing stops.
    run_script(
        "PRAGMA foreign_keys=OFF; PRAGMA temp_store=FILE; PRAGMA secure_delete=OFF;"
        "PRAGMA cache_size=-16000;");
    run_script(std::string("PRAGMA synchronous=").append(name_of(options.sync)));
    // Where nothing else is waited for, a short log costs less after a power failure, and what it
    // touches stays in the nearer caches.
    if (options.sync == Sync::EachCommit) {
        sqlite3_wal_autocheckpoint(opened, pages_of_the_log);
    }
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

void Connection::copy_to(const std::string& path, const std::function<void(double)>& progress) {
    backup_database(handle_.get(), path, [&](double share) {
        check_interrupt();
        progress(share);
    });
}

void Connection::use_write_ahead_log() {
    run_script("PRAGMA journal_mode=WAL");
}

void Connection::begin() {
    begin_->execute({});
}

void Connection::begin_reading() {
    // A transaction begins to read with its first statement.
    run_script("BEGIN; SELECT count(*) FROM sqlite_schema");
}

void Connection::commit() {
    std::optional<BlockingScope> waiting;
    if (options_.sync == Sync::EachCommit) {
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
    connection.long_since_.reset();
    connection.is_over_limit_ = false;
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
    return connection.asked_to_stop() || connection.runs_too_long() ? 1 : 0;
}

// The clock starts with the first call: a short statement has not looked at it at all.
bool Connection::runs_too_long() noexcept {
    if (access_.author != Author::Caller || options_.statement_limit.count() == 0) {
        return false;
    }
    const auto present = std::chrono::steady_clock::now();
    if (!long_since_) {
        long_since_ = present;
    }
    is_over_limit_ = present - *long_since_ >= options_.statement_limit;
    return is_over_limit_;
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
    if (is_over_limit_) {
        raise(HostError::StatementTooLong,
              "Die Anweisung wurde abgebrochen: sie läuft länger als " +
                  seconds(options_.statement_limit) + ".");
    }
    switch (code & 0xFF) {
        case SQLITE_INTERRUPT:
            throw Interrupt();
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            raise(HostError::LockTimeout, "Die Datenbank ist seit mehr als " +
                                              seconds(options_.timeout) +
                                              " von anderer Seite gesperrt.");
        case SQLITE_CONSTRAINT:
            raise(HostError::ValueRefused,
                  "Die Datenbank lehnt den Datensatz ab: " + message + ".");
        case SQLITE_NOMEM:
            throw std::bad_alloc();
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
        case SQLITE_FULL:
        case SQLITE_IOERR:
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_READONLY:
            raise_file_failure(code, message);
        default:
            raise(HostError::StatementRefused, "Die Datenbank lehnt ab: " + message + ".");
    }
}

void Connection::raise_file_failure(int code, const std::string& message) {
    const std::string file = "Die Datenbank " + in_quotes(path_);
    switch (kind_of_failure(code, system_error_of(handle_.get()))) {
        case HostError::Damaged:
            raise(HostError::Damaged,
                  file + " ist beschädigt (" + message +
                      "). cvdev check sagt, was ihr fehlt; cvdev restore macht aus einer Sicherung "
                      "wieder einen Ordner.");
        case HostError::DiskFull:
            raise(HostError::DiskFull,
                  file + " kann nicht geschrieben werden: der Datenträger ist voll.");
        case HostError::NoRights:
            raise(HostError::NoRights,
                  file + " kann nicht geöffnet oder geschrieben werden: dafür fehlen die Rechte.");
        default:
            raise(HostError::Database,
                  file + " kann nicht gelesen oder geschrieben werden: " + message + ".");
    }
}

}  // namespace cvdeveloper::standalone::sqlite
