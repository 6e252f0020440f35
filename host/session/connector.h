#pragma once

#include <memory>
#include <utility>

#include "host/services/office_state.h"
#include "host/session/session_object.h"

namespace cvdeveloper::standalone {

// "CVConnector.Application": a session without a user interface. Everything but Logon needs a
// user logged on.
class Connector final : public SessionObject<host::Connector> {
  public:
    static constexpr std::string_view automation_name = "CVConnector.Application";

    // Each log-on tells the office's federal state, where somebody wants to know it.
    explicit Connector(std::shared_ptr<OfficeState> state = nullptr) : state_(std::move(state)) {}

    // A log-on that fails leaves an earlier one in place.
    void Logon(std::string_view path, std::string_view user, std::string_view password) override;
    ObjectRef Progress() override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    std::shared_ptr<OfficeState> state_;
    ObjectRef progress_;
};

}  // namespace cvdeveloper::standalone
