#pragma once

#include <memory>
#include <utility>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/session.h"
#include "host/services/office_state.h"
#include "host/session/host_session.h"

namespace cvdeveloper::standalone {

// "CVConnector.Application": a session without a user interface. Everything but Logon needs a
// user logged on.
class Connector final : public LibraryObject, public host::Connector {
  public:
    static constexpr std::string_view automation_name = "CVConnector.Application";

    // Each log-on tells the office's federal state, where somebody wants to know it.
    explicit Connector(std::shared_ptr<OfficeState> state = nullptr) : state_(std::move(state)) {}

    // A log-on that fails leaves an earlier one in place.
    void Logon(std::string_view path, std::string_view user, std::string_view password) override;
    ObjectRef Util() override;
    ObjectRef Blob() override;
    ObjectRef DbIni() override;
    RecordSet GetRecordset(std::string_view sql, Password password) override;
    void UpdateRecordset(RecordSet& rs, Password password) override;
    RecordSet CurrentUserRS() override;
    RecordSet STDRS() override;
    std::string ParseAndFill(RecordSet& rs, std::int16_t type, bool& show) override;
    ObjectRef Progress() override;
    host::UnitOfWork* unit_of_work() override;

    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

    // Errors: Closed where nobody is logged on.
    HostSession& session() const;

  private:
    RecordSet get_record_set(std::string_view sql, const Variant& password);
    void update_record_set(RecordSet& rs, const Variant& password);

    std::shared_ptr<OfficeState> state_;
    Ref<HostSession> session_;
    ObjectRef util_;
    ObjectRef blob_;
    ObjectRef db_ini_;
    ObjectRef progress_;
};

}  // namespace cvdeveloper::standalone
