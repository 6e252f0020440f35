#pragma once

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/services.h"

namespace cvdeveloper::standalone {

// "clqexStdC10.cUtil"
class StandardUtil final : public LibraryObject, public host::StandardUtil {
  public:
    std::string GetTempPath() override;
    void CutRight(std::string& text, std::string_view end) override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
};

}  // namespace cvdeveloper::standalone
