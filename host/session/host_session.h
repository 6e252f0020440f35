#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/ref.h"
#include "cvdeveloper/host/session.h"
#include "host/database/statement_cache.h"
#include "host/folder/host_folder.h"
#include "host/recordset/row_writer.h"
#include "host/session/attachment_store.h"
#include "host/session/numbers.h"
#include "host/session/transactions.h"
#include "host/sql/fingerprint.h"
#include "host/sql/statement_reader.h"

namespace cvdeveloper::standalone {

// A logged-on user's work on one host folder: one connection, on which what a unit of work or
// transaction has written is seen by its own reads. Connector and running application both stand
// on it. Calls take the guard; one thread at a time works.
class HostSession final : public RefCounted {
  public:
    // Errors: Folder, LogonFailed, LockTimeout, Database.
    static Ref<HostSession> log_on(std::string_view path, std::string_view user,
                                   std::string_view password);

    HostSession(HostFolder folder, std::unique_ptr<Database> database, std::string user_key);

    [[nodiscard]] const HostFolder& folder() const noexcept { return folder_; }
    [[nodiscard]] const Catalog& catalog() const noexcept { return *catalog_; }
    [[nodiscard]] Guard* guard() const noexcept { return &owner_->guard; }

    // Runs one read-only SELECT. Errors: StatementRefused and others, with the statement's
    // beginning.
    RecordSet get_record_set(std::string_view sql);
    // Writes all changes of a record set of this session, or none.
    void update_record_set(const RecordSet& record_set);
    RecordSet current_user();
    RecordSet master_data();
    // Of the office, as its master data name it; "" where they do not.
    std::string federal_state();

    // Keeps other threads out of the session while it is open.
    [[nodiscard]] host::UnitOfWork& unit_of_work() noexcept { return unit_; }
    void begin_transaction();
    void commit_transaction();
    void roll_back_transaction();
    [[nodiscard]] bool has_transaction() const noexcept { return transactions_.is_open(); }

    // Whoever calls it takes the guard.
    [[nodiscard]] AttachmentStore& attachments() noexcept { return attachments_; }

    // Settings of scripts.
    std::string setting(std::string_view section, std::string_view key,
                        std::string_view default_value);
    void set_setting(std::string_view section, std::string_view key, std::string_view value);

    // Stops the statement that runs at the moment; from any thread.
    void interrupt() noexcept { database_->interrupt(); }
    // Of the callers' prepared statements.
    [[nodiscard]] CacheStatistics statement_statistics() const noexcept {
        return by_fingerprint_.statistics() + by_text_.statistics();
    }

  private:
    class Unit final : public host::UnitOfWork {
      public:
        explicit Unit(HostSession& session) noexcept : session_(session) {}
        void enter() override;
        void leave() override;

      private:
        HostSession& session_;
    };

    // What is kept beside a caller's prepared statement.
    struct Read {
        std::shared_ptr<const Shape> shape;
        std::vector<std::size_t> counters;  // columns that show numbers of cv_counter
        // Whether a run has no rows, whatever is in the tables; whether it takes numbers.
        bool has_no_rows = false;
        bool takes_numbers = false;
        // Of a statement found by its fingerprint: the values it runs with, texts to be filled in.
        std::vector<Value> values;
    };
    using Statements = StatementCache<Read>;

    void clean_up();
    RecordSet read_and_run(std::string_view sql, bool has_fingerprint);
    RecordSet run(Statements::Entry& entry, std::span<const Value> values);
    RecordSet run_own(std::string_view text, std::span<const Value> values);
    Statements::Entry prepare(const sql::ReadStatement& statement);
    Statements::Entry prepare(std::string_view text, std::size_t values,
                              std::span<const std::size_t> dates);
    void fill_in_numbers(const Read& read, Rows& rows);

    HostFolder folder_;
    std::unique_ptr<Database> database_;
    std::shared_ptr<const Catalog> catalog_;
    std::string user_key_;
    std::shared_ptr<RecordSetOwner> owner_;
    sql::Dictionary dictionary_;
    sql::StatementReader reader_;
    sql::Fingerprint fingerprint_;
    // Most statements are found without being read; those that depend on their texts, as LIKE
    // does, are read each time and found by what the database gets to see.
    Statements by_fingerprint_;
    Statements by_text_;
    std::vector<Value> values_;
    Transactions transactions_;
    AttachmentStore attachments_;
    Unit unit_{*this};
    RowWriter writer_;
    Numbers numbers_;
};

}  // namespace cvdeveloper::standalone
