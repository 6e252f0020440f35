#pragma once

#include <span>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/session.h"
#include "host/session/host_session.h"

namespace cvdeveloper::standalone {

// What the connector and the running application have in common: all that needs a user logged on.
// The interface is host::Connector or host::Application.
template <class Interface>
class SessionObject : public LibraryObject, public Interface {
  public:
    using Password = host::Session::Password;

    ObjectRef Util() override;
    ObjectRef Blob() override;
    ObjectRef DbIni() override;
    RecordSet GetRecordset(std::string_view sql, Password password) override;
    void UpdateRecordset(RecordSet& rs, Password password) override;
    RecordSet CurrentUserRS() override;
    RecordSet STDRS() override;
    std::string ParseAndFill(RecordSet& rs, std::int16_t type, bool& show) override;
    host::UnitOfWork* unit_of_work() override;

    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    std::string StatementStatistics();

    // Errors: Closed where nobody is logged on.
    HostSession& session() const;

  protected:
    void attach(Ref<HostSession> session);

    // The rows of the members above: ids 2 to 9, 11 to 13 and 30.
    [[nodiscard]] static std::span<const Operation> shared_operations() noexcept;

  private:
    RecordSet get_record_set(std::string_view sql, const Variant& password);
    void update_record_set(RecordSet& rs, const Variant& password);

    Ref<HostSession> session_;
    ObjectRef util_;
    ObjectRef blob_;
    ObjectRef db_ini_;
};

extern template class SessionObject<host::Connector>;
extern template class SessionObject<host::Application>;

}  // namespace cvdeveloper::standalone
