#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// User-defined values of a record, one row for each field kind. The table of T is T in upper case
// with DET behind it. Where a record has several rows of one field kind, the first by key counts.
// An empty table name, record key or field kind key does nothing and gives "" or false.
class DetailValues : public Topic {
  public:
    using Topic::Topic;

    std::string Det_GetValue(std::string_view strTable, std::string_view strTableDsn,
                             std::string_view strFldArtDsn) const;
    // The bounds are changed only where there is a row.
    bool Det_GetNumValue(std::string_view strTable, std::string_view strTableDsn,
                         std::string_view strFldArtDsn, Variant& lngVonNum,
                         Variant& lngBisNum) const;
    // "[NOTHING]" leaves the column as it is.
    bool Det_SetValue(std::string_view strTable, std::string_view strTableDsn,
                      std::string_view strFldArtDsn, std::string_view strValue,
                      std::string_view strAcl = "[NOTHING]",
                      std::string_view strLinkDsn = "[NOTHING]") const;
    bool Det_Delete(std::string_view strTable, std::string_view strTableDsn,
                    std::string_view strFldArtDsn) const;
    // The access-control string is the one that the entry mask gives the field kind.
    bool Det_SetValueWithEMSK(std::string_view strTable, std::string_view strTableDsn,
                              std::string_view strFldArtDsn, std::string_view strValue,
                              std::string_view strEmskDsn = {},
                              std::string_view strLinkDsn = "[NOTHING]") const;
    // Serves activities: the copies' owner is written into Akt_Dsn whatever the table.
    std::int32_t Det_Copy(std::string_view strTable, std::string_view strSourceDsn,
                          std::string_view strDestDsn) const;
    std::string Det_GetOptionDsn(std::string_view strTable, std::string_view strTableDsn,
                                 std::string_view strFldArtDsn) const;
    bool Det_SetOptionDsn(std::string_view strTable, std::string_view strTableDsn,
                          std::string_view strFldArtDsn, std::string_view strValue,
                          std::string_view strAcl = "[NOTHING]") const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
