#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making property objects: houses, flats, plots.
class PropertyObjects : public Topic {
  public:
    using Topic::Topic;

    RecordSet OBJ_New() const;
    // Saves a complete object, gives it the user's standard features and returns its key.
    std::string OBJ_Create(std::string_view strIntern = {}, ENUM_EART enumEART = EART_KAUF,
                           std::string_view strEmskDsn = {}, std::string_view strAnbieterAdDsn = {},
                           std::string_view strAuftragsende = {}, std::string_view strNotiz = {},
                           std::int32_t intAbteilung = 0) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
