#pragma once

#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Copying a set of activities with their tree, features, details and attachments.
class ActivityCopy : public Topic {
  public:
    using Topic::Topic;

    // Gives the copies, not yet saved; what hangs on them is written already.
    RecordSet AKT_Copy(const RecordSet& rsAkt, std::string_view strUserDsn = {},
                       std::string_view strProjekteDsn = {}, Date datStartDate = {},
                       Date datRefDate = {}, bool blnWochenende = true,
                       bool blnFeiertag = true) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
