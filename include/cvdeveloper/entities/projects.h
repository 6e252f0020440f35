#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making projects.
class Projects : public Topic {
  public:
    using Topic::Topic;

    RecordSet PROJEKTE_New() const;
    // Saves a complete project, gives it the user's standard features and returns its key.
    std::string PROJEKTE_Create(std::string_view strBezeichnung = {},
                                std::string_view strNotiz = {}, std::string_view strStichwort = {},
                                std::string_view strStichwort2 = {},
                                std::string_view strEmskDsn = {},
                                std::string_view strRootProjekteDsn = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
