#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Outgoing e-mails, kept as activities and queued for the host's delivery.
class Emails : public Topic {
  public:
    using Topic::Topic;

    std::string AKT_CreateEMail(
        std::string_view strAktArtDsn = {}, std::string_view strMailTo = {},
        std::string_view strMailFrom = {}, std::string_view strMailSubject = {},
        std::string_view strMailBody = {}, std::string_view strAttachmentPipeList = {},
        std::string_view strMailCC = {}, std::string_view strMailBCC = {}, bool blnErledigt = false,
        Date dateDatum = {}, Date dateDatumBis = {}, Date dateDatumVorlage = {},
        Date dateDatumAlarm = {}, Date dateLoeschdatum = {}, std::string_view strStichwort1 = {},
        std::string_view strStichwort2 = {}, std::string_view strEmskDsn = {},
        std::string_view strAdDsn1 = {}, std::string_view strAdDsn2 = {},
        std::string_view strObjDsn = {}, std::string_view strAnfDsn = {},
        std::string_view strProjekteDsn = {}, std::string_view strAktenDsn = {},
        std::string_view strVertraegeDsn = {}, std::string_view strDetailsDsn = {},
        std::string_view strRootAktDsn = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
