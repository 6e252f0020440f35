#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making detail sheets: what is noted about an address under a heading.
class DetailSheets : public Topic {
  public:
    using Topic::Topic;

    RecordSet Details_New() const;
    // Saves a complete detail sheet, gives it the user's standard features and returns its key.
    std::string Details_Create(std::string_view strAdDsn, std::string_view strEmskDsn,
                               std::string_view strOberbegriff = {},
                               std::string_view strNotiz = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
