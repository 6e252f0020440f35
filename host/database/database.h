#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/database/catalog.h"
#include "host/database/rows.h"
#include "host/database/value.h"

// What the host needs of a database. SQLite is the one that exists; nothing outside the driver's
// folder knows it.
namespace cvdeveloper::standalone {

// A column of a result. Table and column are empty where it is an expression.
struct ResultColumn {
    std::string name;
    std::string table;
    std::string column;
};

// A prepared statement. Each run is complete when it returns: nothing stays open in between.
class Statement {
  public:
    Statement() = default;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    virtual ~Statement() = default;

    [[nodiscard]] virtual const std::vector<ResultColumn>& columns() const noexcept = 0;
    [[nodiscard]] virtual std::size_t parameter_count() const noexcept = 0;
    // Appends all rows of the result.
    virtual void query(std::span<const Value> values, Rows& rows) = 0;
    // The number of rows written.
    virtual std::int64_t execute(std::span<const Value> values) = 0;
};

// What has reached the disk when a write returns.
enum class Sync : std::uint8_t {
    EachCommit,   // everything
    Checkpoints,  // a power failure may cost the last transactions, never the file
    Never,        // a power failure may cost the file
};

// Whose statement it is. A caller's is held to one read-only SELECT.
enum class Author : std::uint8_t { Host, Caller };

// One connection. One thread at a time, except for interrupt().
class Database {
  public:
    Database() = default;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    virtual ~Database() = default;

    // Errors: what the database does not accept is StatementRefused, with its own message.
    virtual std::unique_ptr<Statement> prepare(std::string_view text, Author author) = 0;
    // Runs several statements of the host's own, such as the schema.
    virtual void run_script(const std::string& script) = 0;

    // Copies the database as it is at this moment into a file, which nobody but its owner may read;
    // others go on writing meanwhile. progress() is told the share that is done. Errors: those of
    // the disk; the file is gone then.
    virtual void copy_to(const std::string& path, const std::function<void(double)>& progress) = 0;

    // Readers and a writer do not stand in each other's way from here on. The file keeps it.
    virtual void use_write_ahead_log() = 0;

    // A writing transaction, begun at once so that it cannot fail for somebody else's later.
    virtual void begin() = 0;
    // A transaction that reads what is there now, whatever others write meanwhile.
    virtual void begin_reading() = 0;
    virtual void commit() = 0;
    virtual void rollback() noexcept = 0;
    virtual void set_savepoint() = 0;
    virtual void release_savepoint() = 0;
    virtual void rollback_to_savepoint() noexcept = 0;
    // False again when the database has ended a transaction by itself.
    [[nodiscard]] virtual bool in_transaction() const noexcept = 0;

    // Outlives the connection where record sets still refer to it.
    [[nodiscard]] virtual std::shared_ptr<const Catalog> catalog() const noexcept = 0;
    // Stops the statement that runs at the moment; it raises Interrupt. From any thread.
    virtual void interrupt() noexcept = 0;
};

}  // namespace cvdeveloper::standalone
