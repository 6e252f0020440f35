#pragma once

#include "host/session/session_object.h"

namespace cvdeveloper::standalone {

// "CVConnector.Application": a session without a user interface. Everything but Logon needs a
// user logged on.
class Connector final : public SessionObject<host::Connector> {
  public:
    static constexpr std::string_view automation_name = "CVConnector.Application";

    // A log-on that fails leaves an earlier one in place.
    void Logon(std::string_view path, std::string_view user, std::string_view password) override;
    ObjectRef Progress() override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
};

}  // namespace cvdeveloper::standalone
