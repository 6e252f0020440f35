#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making contracts.
class Contracts : public Topic {
  public:
    using Topic::Topic;

    RecordSet VERTRAEGE_New() const;
    // Saves a complete contract, gives it the user's standard features and returns its key.
    std::string VERTRAEGE_Create(std::string_view strVertragsnummer = {},
                                 std::string_view strIntern = {}, std::string_view strNotiz = {},
                                 std::string_view strEmskDsn = {},
                                 std::string_view strAdNehmerDsn = {},
                                 std::string_view strAdGesellschaftDsn = {},
                                 std::string_view strAdVermittlerDsn = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
