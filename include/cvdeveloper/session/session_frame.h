#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Attaching to a host and detaching from it, and what the session tells about itself.
class SessionFrame : public Topic {
  public:
    using Topic::Topic;

    [[nodiscard]] std::string GetVersion() const;

    // Failures of attaching are shown in message boxes; the calls return all the same.
    void Corvanta_InitApplication() const;
    void Corvanta_InitConnector(std::string_view strCorvantaPath, std::string_view strUser,
                                std::string_view strPassword) const;
    void Corvanta_SetApplication(const Variant& oCV) const;
    void Corvanta_Done() const;

    [[nodiscard]] enumInitType Corvanta_InitType() const;
    [[nodiscard]] ObjectRef Corvanta_Application() const;
    [[nodiscard]] ObjectRef Corvanta_Connector() const;
    [[nodiscard]] RecordSet Corvanta_CurrentUserRS() const;
    [[nodiscard]] RecordSet Corvanta_STDRS() const;
    [[nodiscard]] bool Corvanta_IsAdmin() const;
    [[nodiscard]] double Corvanta_DbVersion() const;
    [[nodiscard]] std::string Corvanta_Folder() const;
    [[nodiscard]] ObjectRef oUtil() const;
    [[nodiscard]] ObjectRef oBlob() const;
    [[nodiscard]] ObjectRef oDbIni() const;

    static std::span<const Operation> operations() noexcept;

  private:
    void log_on(const std::string& path, std::string_view user, std::string_view password) const;
};

}  // namespace cvdeveloper
