#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making activities and giving them the defaults of their type.
class Activities : public Topic {
  public:
    using Topic::Topic;

    RecordSet AKT_New() const;
    // Saves a complete activity, gives it the user's standard features and returns its key.
    std::string AKT_Create(std::string_view strAktArtDsn = {}, std::string_view strBetreff = {},
                           std::string_view strNotiz = {}, bool blnErledigt = false,
                           Date dateDatum = {}, Date dateDatumBis = {}, Date dateDatumVorlage = {},
                           Date dateDatumAlarm = {}, Date dateLoeschdatum = {},
                           std::string_view strStichwort1 = {}, std::string_view strStichwort2 = {},
                           std::string_view strEmskDsn = {}, std::string_view strAdDsn1 = {},
                           std::string_view strAdDsn2 = {}, std::string_view strObjDsn = {},
                           std::string_view strAnfDsn = {}, std::string_view strProjekteDsn = {},
                           std::string_view strAktenDsn = {}, std::string_view strVertraegeDsn = {},
                           std::string_view strDetailsDsn = {},
                           std::string_view strRootAktDsn = {}) const;
    void AKT_SetAktArt(RecordSet& rsAkt, const RecordSet& rsAktArt) const;
    void AKT_SetAktArtByDsn(std::string_view strAktDsn, std::string_view strAktArtDsn) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
