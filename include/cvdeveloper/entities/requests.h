#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making requests: what buyers and tenants look for.
class Requests : public Topic {
  public:
    using Topic::Topic;

    RecordSet ANF_New() const;
    // Saves a complete request, gives it the user's standard features and returns its key.
    std::string ANF_Create(std::string_view strAdDsn = {}, std::string_view strEmskDsn = {},
                           std::string_view strNotiz = {}, ENUM_EART enumEART = EART_KAUF,
                           std::int32_t lngAbteilung = 0, std::string_view strManuell = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
