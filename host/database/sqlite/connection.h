#pragma once

#include <sqlite3.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/class_registry.h"
#include "host/database/database.h"
#include "host/database/sqlite/access.h"

namespace cvdeveloper::standalone::sqlite {

struct OpenOptions {
    bool create = false;
    // How long to wait for somebody else's transaction.
    std::chrono::milliseconds timeout = std::chrono::seconds(10);
    // How long a caller's statement may run; zero for as long as it likes.
    std::chrono::milliseconds statement_limit{0};
    Sync sync = Sync::EachCommit;
};

// A database file. Opening one changes nothing in it.
class Connection final : public Database {
  public:
    // Errors: NoRights where the file may not be written; Damaged; Database where it cannot be
    // opened for other reasons.
    Connection(const std::string& path, const OpenOptions& options);
    ~Connection() override;

    std::unique_ptr<Statement> prepare(std::string_view text, Author author) override;
    void run_script(const std::string& script) override;
    void copy_to(const std::string& path, const std::function<void(double)>& progress) override;
    void use_write_ahead_log() override;
    void begin() override;
    void begin_reading() override;
    void commit() override;
    void rollback() noexcept override;
    void set_savepoint() override;
    void release_savepoint() override;
    void rollback_to_savepoint() noexcept override;
    [[nodiscard]] bool in_transaction() const noexcept override;
    [[nodiscard]] std::shared_ptr<const Catalog> catalog() const noexcept override {
        return catalog_;
    }
    void interrupt() noexcept override;

    // Reads the tables anew, after the schema was made.
    void read_catalog();

  private:
    friend class PreparedStatement;

    struct Close {
        void operator()(sqlite3* connection) const noexcept { sqlite3_close_v2(connection); }
    };

    // For the duration of a statement: whose it is, and the interpreter lock, which is given up
    // once the statement turns out to be long or has to wait.
    class Running {
      public:
        Running(Connection& connection, Author author);
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;
        ~Running();

      private:
        Connection& connection_;
        Author before_;
    };
    void give_up_interpreter_lock();
    // Whether the statement is to stop: somebody called interrupt(), or the user wants it.
    [[nodiscard]] bool asked_to_stop() noexcept;
    [[nodiscard]] bool runs_too_long() noexcept;

    static int on_progress(void* self);
    static int on_busy(void* self, int attempts);
    [[noreturn]] void raise_failure(int code);
    // What disk and system say, in the file's name.
    [[noreturn]] void raise_file_failure(int code, const std::string& message);

    std::unique_ptr<sqlite3, Close> handle_;
    std::string path_;
    OpenOptions options_;
    Access access_;
    std::shared_ptr<const Catalog> catalog_;
    std::atomic<bool> interrupted_ = false;
    std::optional<BlockingScope> long_run_;
    std::optional<std::chrono::steady_clock::time_point> long_since_;
    bool is_over_limit_ = false;
    std::chrono::steady_clock::time_point waiting_since_;
    std::chrono::steady_clock::time_point last_check_;
    std::exception_ptr users_interrupt_;  // what the script host has to say about it

    std::unique_ptr<Statement> begin_;
    std::unique_ptr<Statement> commit_;
    std::unique_ptr<Statement> rollback_;
    std::unique_ptr<Statement> set_savepoint_;
    std::unique_ptr<Statement> release_savepoint_;
    std::unique_ptr<Statement> rollback_to_savepoint_;
};

}  // namespace cvdeveloper::standalone::sqlite
