#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The host's user interface: forms, progress window, parser of detail values. Forms exist only in
// a running application; in a connector's session showing them does nothing.
class UserInterfaceBridge : public Topic {
  public:
    using Topic::Topic;

    ObjectRef CV_CreateProgress() const;
    // The record set and the flag that the host leaves there come back.
    std::string CV_ParseAndFill(RecordSet& rsDets, std::int16_t typ, bool& bMsg) const;

    // A form that the host does not know is passed over.
    void Pane_Find(std::string_view strFormName, std::string_view strWhere) const;
    void Pane_FindDSN(std::string_view strFormName, std::string_view strDsn) const;
    void Pane_Show(std::string_view strFormName) const;

    static std::span<const Operation> operations() noexcept;

  private:
    [[nodiscard]] host::Bound<host::Pane> pane(std::string_view form) const;
};

}  // namespace cvdeveloper
