#pragma once

#include <functional>
#include <utility>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// When what is written gets committed. A unit of work begins a transaction with its first write
// and commits it once at its outermost end, also after an error: what was written before stays.
// In a caller's own transaction units do nothing.
class Transactions final {
  public:
    // ended() is called after every transaction that outlasted one write, kept or not.
    explicit Transactions(
        Database& database, std::function<void()> ended = [] {})
        : database_(database), ended_(std::move(ended)) {}

    void enter() noexcept { ++depth_; }
    void leave();

    // Commits what a unit has written so far, so that nobody waits for what takes long from here
    // on. A caller's own transaction stays open.
    void release();

    // Errors: Transaction for a second one, or an end without a beginning.
    void begin();
    void commit();
    void rollback();
    [[nodiscard]] bool is_open() const noexcept { return is_callers_; }

    // Runs a write whole or not at all. A single statement needs no bracket of its own.
    template <class Write>
    void run(bool single_statement, const Write& write) {
        prepare_for_write();
        if (single_statement) {
            write();
        } else if (database_.in_transaction()) {
            run_in_savepoint(write);
        } else {
            run_in_transaction(write);
        }
    }

    // The same for a write that can be taken back with less effort than a savepoint costs;
    // take_back() knows by itself how far the write has come.
    template <class Write, class TakeBack>
    void run(const Write& write, const TakeBack& take_back) {
        prepare_for_write();
        if (!database_.in_transaction()) {
            run_in_transaction(write);
            return;
        }
        try {
            write();
        } catch (...) {
            take_back_or_roll_back(take_back);
            throw;
        }
    }

    // Runs writes that do no harm by halves: in the transaction that is open, or in one of their
    // own.
    template <class Write>
    void run_in_any(const Write& write) {
        prepare_for_write();
        if (database_.in_transaction()) {
            write();
        } else {
            run_in_transaction(write);
        }
    }

  private:
    void prepare_for_write();

    // Called while an error is on its way: that one counts.
    template <class TakeBack>
    void take_back_or_roll_back(const TakeBack& take_back) noexcept {
        try {
            // A full disk ends the transaction, and with it everything in it.
            if (database_.in_transaction()) {
                take_back();
            }
        } catch (const std::exception&) {
            database_.rollback();
        }
    }

    template <class Write>
    void run_in_savepoint(const Write& write) {
        database_.set_savepoint();
        try {
            write();
        } catch (...) {
            database_.rollback_to_savepoint();
            throw;
        }
        database_.release_savepoint();
    }

    template <class Write>
    void run_in_transaction(const Write& write) {
        database_.begin();
        try {
            write();
            database_.commit();
        } catch (...) {
            database_.rollback();
            throw;
        }
    }

    Database& database_;
    std::function<void()> ended_;
    int depth_ = 0;
    bool is_callers_ = false;
};

}  // namespace cvdeveloper::standalone
