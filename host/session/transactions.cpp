#include "host/session/transactions.h"

#include "host/errors.h"

namespace cvdeveloper::standalone {

void Transactions::prepare_for_write() {
    if (database_.in_transaction()) {
        return;
    }
    if (is_callers_) {
        raise(HostError::Transaction,
              "Die Datenbank hat die Transaktion abgebrochen; bitte RollbackTrans aufrufen.");
    }
    if (depth_ > 0) {
        database_.begin();
    }
}

void Transactions::leave() {
    if (--depth_ == 0) {
        release();
    }
}

void Transactions::release() {
    if (is_callers_ || !database_.in_transaction()) {
        return;
    }
    try {
        database_.commit();
    } catch (...) {
        database_.rollback();
        ended_();
        throw;
    }
    ended_();
}

void Transactions::begin() {
    if (is_callers_) {
        raise(HostError::Transaction, "Es ist schon eine Transaktion begonnen.");
    }
    if (!database_.in_transaction()) {
        database_.begin();
    }
    is_callers_ = true;
}

void Transactions::commit() {
    if (!is_callers_) {
        raise(HostError::Transaction, "CommitTrans ohne BeginTrans.");
    }
    prepare_for_write();
    // A commit that fails leaves the transaction open, to be tried again or rolled back.
    database_.commit();
    is_callers_ = false;
    ended_();
}

void Transactions::rollback() {
    if (!is_callers_) {
        raise(HostError::Transaction, "RollbackTrans ohne BeginTrans.");
    }
    is_callers_ = false;
    database_.rollback();
    ended_();
}

}  // namespace cvdeveloper::standalone
