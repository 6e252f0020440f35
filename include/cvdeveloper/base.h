#pragma once

#include "cvdeveloper/data/gateway.h"

namespace cvdeveloper {

// The data operations that work on any table of the host.
class clsBase final : public SessionObject, public Gateway {
  public:
    static constexpr std::string_view automation_name = "clsBase";

    explicit clsBase(Ref<Session> shared);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
};

}  // namespace cvdeveloper
