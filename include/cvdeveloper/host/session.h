#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cvdeveloper/host/record_set.h"

namespace cvdeveloper::host {

// Brackets the writes of one operation. A host decides what it makes of it; leave() may fail.
class UnitOfWork {
  public:
    virtual ~UnitOfWork() = default;
    virtual void enter() = 0;
    virtual void leave() = 0;
};

// What a running application and a connector have in common. Service objects are handed out as
// objects; those written in C++ implement the classes of services.h.
class Session {
  public:
    using Password = std::optional<std::string_view>;

    virtual ~Session() = default;
    virtual ObjectRef Util() = 0;
    virtual ObjectRef Blob() = 0;
    virtual ObjectRef DbIni() = 0;
    virtual cvdeveloper::RecordSet GetRecordset(std::string_view sql, Password password) = 0;
    // May leave another record set in rs.
    virtual void UpdateRecordset(cvdeveloper::RecordSet& rs, Password password) = 0;
    virtual cvdeveloper::RecordSet CurrentUserRS() = 0;
    virtual cvdeveloper::RecordSet STDRS() = 0;
    virtual std::string ParseAndFill(cvdeveloper::RecordSet& rs, std::int16_t type, bool& show) = 0;
    virtual UnitOfWork* unit_of_work() { return nullptr; }
};

// "Corvanta.Application"
class Application : public Session {
  public:
    virtual bool IsLoggedIn() = 0;
    virtual std::string Folder() = 0;
    virtual std::int32_t VersionBuild() = 0;
    virtual ObjectRef Panes(std::string_view form) = 0;  // the form's pane, or nothing
    virtual std::string Get_Platzhalter(const cvdeveloper::RecordSet& rs, std::string_view name,
                                        std::string_view sql) = 0;
};

// "CVConnector.Application"
class Connector : public Session {
  public:
    virtual void Logon(std::string_view path, std::string_view user, std::string_view password) = 0;
    virtual ObjectRef Progress() = 0;
};

}  // namespace cvdeveloper::host
