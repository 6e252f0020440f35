#include "cvdeveloper/data/unit.h"

#include "cvdeveloper/data/diagnostic_log.h"

namespace cvdeveloper {

Unit::Unit(Session& session)
    : lock_(&session.guard), session_(session), host_unit_(session.host().unit_of_work()) {
    if (host_unit_ != nullptr) {
        host_unit_->enter();
    }
}

void Unit::leave() {
    if (host_unit_ == nullptr) {
        return;
    }
    try {
        host_unit_->leave();
    } catch (const AutomationError& error) {
        if (!session_.sql_log) {
            throw;
        }
        DiagnosticLog(session_).DoLog("ERROR GetRecordset", error.description());
    }
}

void Unit::leave_after(const AutomationError& error) {
    if (host_unit_ != nullptr) {
        try {
            host_unit_->leave();
        } catch (const AutomationError& second) {
            throw error.with_note("; " + second.description());
        }
    }
    throw error;
}

void Unit::leave_quietly() noexcept {
    if (host_unit_ == nullptr) {
        return;
    }
    try {
        host_unit_->leave();
    } catch (const AutomationError&) {
        return;  // the interrupt or exhausted memory on its way out is the greater news
    }
}

}  // namespace cvdeveloper
