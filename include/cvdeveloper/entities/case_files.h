#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making case files.
class CaseFiles : public Topic {
  public:
    using Topic::Topic;

    RecordSet AKTEN_New() const;
    // Saves a complete case file, gives it the user's standard features and returns its key.
    std::string AKTEN_Create(std::string_view strEmskDsn = {}, std::string_view strNotiz = {},
                             std::string_view strRubrum = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
