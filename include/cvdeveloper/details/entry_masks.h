#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Entry masks (EMSK): which field kinds a record shows, and how. The field kinds of a mask are
// rows of EmskDet, in the order of their keys.
class EntryMasks : public Topic {
  public:
    using Topic::Topic;

    // The row is not saved.
    RecordSet EMSK_New() const;
    std::string EMSK_Create(std::string_view strEmskName = {}, ENUM_EART enumEART = EART_KAUF,
                            std::string_view strNotiz = {}, std::string_view strTableCommaList = {},
                            std::string_view strGruppen = {}) const;
    std::string EMSK_GetFldArtDsnList(std::string_view strEmskDsn) const;
    // False where a key is empty or the mask has the field kind already.
    bool EMSK_AddFldArt(std::string_view strEmskDsn, std::string_view strFldArtDsn,
                        bool blnPflichtfeld = false, std::int32_t intBackColor = 0,
                        std::string_view strDefaultACL = {},
                        std::string_view strFldArtOp_Filter = {}) const;
    bool EMSK_DelFldArt(std::string_view strEmskDsn, std::string_view strFldArtDsn) const;
    bool EMSK_ContainsFldArt(std::string_view strEmskDsn, std::string_view strFldArtDsn) const;

    // Null where the mask lacks the field kind; the typed readings give "", 0 or false there.
    Variant EMSK_GetField(std::string_view strEmskDsn, std::string_view strFldArtDsn,
                          std::string_view strFieldName) const;
    std::string EMSK_GetDefaultACL(std::string_view strEmskDsn,
                                   std::string_view strFldArtDsn) const;
    std::int32_t EMSK_GetBackcolor(std::string_view strEmskDsn,
                                   std::string_view strFldArtDsn) const;
    std::int32_t EMSK_GetFldArtOpFilter(std::string_view strEmskDsn,
                                        std::string_view strFldArtDsn) const;
    bool EMSK_GetMandatory(std::string_view strEmskDsn, std::string_view strFldArtDsn) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
