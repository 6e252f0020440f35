#pragma once

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/services.h"
#include "host/session/host_session.h"

namespace cvdeveloper::standalone {

// The session's attachments. What they hold is kept in the host folder, or left where it is and
// only its path kept (kind 7).
class Blob final : public LibraryObject, public host::Blob {
  public:
    explicit Blob(Ref<HostSession> session) : session_(std::move(session)) {}

    std::string SaveBlobFile(std::string_view path, std::string_view link_key,
                             std::int32_t kind) override;
    std::string SaveBlobFile(std::string_view path, std::string_view link_key, std::int32_t kind,
                             std::string_view blob_key, bool mark_send) override;
    void DeleteBlobFile(std::string_view blob_key, std::string_view link_key, std::int32_t kind,
                        std::string_view info) override;
    RecordSet GetBlobInfos(std::string_view link_key) override;
    std::string GetSourceFilename(std::string_view blob_key) override;
    std::string OpenBlobFile(std::string_view blob_key, std::string_view link_key,
                             std::int32_t kind) override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    // As scripts call it: one function with optional arguments.
    std::string save(std::string_view path, std::string_view link_key, std::int32_t kind,
                     std::string_view blob_key, bool mark_send);

    Ref<HostSession> session_;
};

}  // namespace cvdeveloper::standalone
