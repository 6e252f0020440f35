#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/session/session_object.h"
#include "host/ui/display.h"

namespace cvdeveloper::standalone {

// "Corvanta.Application": a running application with a user logged on. Its forms appear on a
// display.
class Application final : public SessionObject<host::Application> {
  public:
    static constexpr std::string_view automation_name = "Corvanta.Application";

    Application(Ref<HostSession> session, std::shared_ptr<Display> display);

    bool IsLoggedIn() override;
    // The host folder, without a separator at its end.
    std::string Folder() override;
    std::int32_t VersionBuild() override;
    // The same pane each time; nothing for a form that there is not.
    ObjectRef Panes(std::string_view form) override;
    std::string Get_Platzhalter(const RecordSet& rs, std::string_view name,
                                std::string_view sql) override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    Ref<HostSession> shared_session_;
    std::shared_ptr<Display> display_;
    sql::NameMap<ObjectRef> panes_;  // by table
};

// Logs a user on and makes the application the running one, in place of an earlier one. Its forms
// are written to the terminal unless another display is given.
// Errors: one sentence that says what is wrong with folder, user or password.
Ref<Application> start_application(std::string_view folder, std::string_view user,
                                   std::string_view password,
                                   std::shared_ptr<Display> display = nullptr);

}  // namespace cvdeveloper::standalone
