#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The allowed values of option fields (FldArtOp). Texts are cut to their columns without notice.
class FieldOptions : public Topic {
  public:
    using Topic::Topic;

    // The row is not saved.
    RecordSet FldArtOp_New() const;
    // Without a field kind error 601 "FldArt_Dsn ist ein Pflichtfeld".
    std::string FldArtOp_Create(std::string_view strFldArtOpBezeichnung,
                                std::string_view strFldArtDsn, std::string_view strWert = {},
                                std::string_view strKurz = {}, bool blnDefaultwert = false) const;
    RecordSet FldArtOp_FindByFldArt(std::string_view strFldArtDsn) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
