#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"
#include "cvdeveloper/tools/salutation_list.h"

namespace cvdeveloper {

// The settings of the host's installation: the one row of Std. Nothing is kept between calls.
class MasterData : public Topic {
  public:
    using Topic::Topic;

    RecordSet STD_Find() const;
    // A column, or an expression over the columns, as text.
    std::string STD_GetField(std::string_view strFieldName) const;
    Ref<clsSalutationList> STD_GetSalutationList() const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
