#pragma once

#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Writing a field's long text or long bytes to a file.
class FieldFiles : public Topic {
  public:
    using Topic::Topic;

    // True if all of it was written. Any failure gives False; what was written so far stays.
    bool FieldToFile(ObjectRef fld, std::string_view FName, std::int32_t FieldSize = -1,
                     std::int32_t Threshold = 1048576) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
