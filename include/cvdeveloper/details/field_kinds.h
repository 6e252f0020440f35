#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The user-defined fields that records can have (FldArt). Texts are cut to their columns without
// notice.
class FieldKinds : public Topic {
  public:
    using Topic::Topic;

    // The row is not saved.
    RecordSet FldArt_New() const;
    std::string FldArt_Create(std::string_view strFldArtKuerzel = {},
                              ENUM_FLDARTTYP enumFldArtTyp = FLDARTTYP_TEXT,
                              std::string_view strSortierung = {},
                              std::string_view strPlausibilitaet = {},
                              std::string_view strFormat = {}, std::string_view strNotiz = {},
                              std::string_view strTableCommaList = {},
                              std::string_view strIntern = {},
                              std::string_view strGruppen = {}) const;
    // The row is not saved.
    void FldArt_SetTyp(const RecordSet& rsFldArt, ENUM_FLDARTTYP enumTyp) const;
    ENUM_FLDARTTYP FldArt_GetTyp(const RecordSet& rsFldArt) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
