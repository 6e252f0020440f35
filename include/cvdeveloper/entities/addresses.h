#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"
#include "cvdeveloper/tools/phone_list.h"

namespace cvdeveloper {

// Addresses of persons and companies: making them, their names and salutations, phone lists, and
// finding them by phone number.
class Addresses : public Topic {
  public:
    using Topic::Topic;

    RecordSet AD_New() const;
    // Saves a complete address, gives it the user's standard features and returns its key.
    std::string AD_Create(std::string_view strFirma = {}, std::string_view strName = {},
                          std::string_view strStrasse = {}, std::string_view strPLZ = {},
                          std::string_view strOrt = {}, std::string_view strNotiz = {},
                          std::string_view strAdRootDsn = {}) const;

    // These fill the current row and save nothing.
    void AD_SetName(const RecordSet& rsAd, std::string_view strTitle, std::string_view strFirstName,
                    std::string_view strFamilyName) const;
    void AD_SetNameAndSalutation(const RecordSet& rsAd, std::string_view strSalutationShort,
                                 std::string_view strTitle, std::string_view strFirstName,
                                 std::string_view strFamilyName) const;
    void AD_SetPhoneList(const RecordSet& rsAd, Ref<clsPhoneList> oPhoneList) const;

    // False, and three empty texts, without a current row.
    bool AD_GetName(const RecordSet& rsAd, Variant& strTitle, Variant& strFirstName,
                    Variant& strFamilyName) const;
    Ref<clsPhoneList> AD_GetPhoneList(const RecordSet& rsAd) const;

    std::string AD_FindDSNByPhoneEMail(std::string_view strPhoneEMail) const;
    RecordSet AD_GetDetails(std::string_view strAdDsn, std::string_view strEmskDsn) const;
    std::string AD_GetDetailsDsn(std::string_view strAdDsn, std::string_view strEmskDsn) const;
    // The letter form of the installation's first salutation, read once.
    std::string AD_GetStdBriefAnrede() const;

    static std::span<const Operation> operations() noexcept;

  private:
    [[nodiscard]] std::string details_condition(std::string_view address,
                                                std::string_view mask) const;
};

}  // namespace cvdeveloper
