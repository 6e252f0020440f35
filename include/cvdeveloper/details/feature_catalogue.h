#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The features that records can carry (Mkm). Texts are cut to their columns without notice.
class FeatureCatalogue : public Topic {
  public:
    using Topic::Topic;

    // The row is not saved.
    RecordSet MKM_New() const;
    std::string MKM_Create(std::string_view strMerkmalName = {},
                           std::string_view strSortierung = {}, std::string_view strNotiz = {},
                           std::string_view strTableCommaList = {},
                           std::string_view strGruppe = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
