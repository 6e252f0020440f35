#pragma once

#include "cvdeveloper/automation/library_object.h"
#include "host/session/host_session.h"

namespace cvdeveloper::standalone {

// Settings of scripts, kept in the database for all users.
class DbIni final : public LibraryObject {
  public:
    explicit DbIni(Ref<HostSession> session) : session_(std::move(session)) {}

    std::string get_value(std::string_view section, std::string_view key,
                          std::string_view default_value);
    void set_value(std::string_view section, std::string_view key, std::string_view value);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    Ref<HostSession> session_;
};

}  // namespace cvdeveloper::standalone
