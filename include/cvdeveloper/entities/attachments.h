#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Files attached to records: their content in the host's store, or a link to where they lie.
class Attachments : public Topic {
  public:
    using Topic::Topic;

    std::string AKT_Blob_Add(std::string_view strAktDsn, std::string_view strFileName,
                             bool blnAsLink = false, bool blnMarkSend = true) const;
    std::string BLOB_Add(std::string_view strFileName, std::string_view strLinkDsn, bool blnAsLink,
                         bool blnMarkSend) const;
    void BLOB_Del(std::string_view strBlobDsn, std::string_view strInfo) const;
    RecordSet BLOB_GetInfo(std::string_view strLinkDsn) const;
    std::string BLOB_GetDsnCommaList(std::string_view strLinkDsn) const;
    std::string BLOB_GetFilename(std::string_view strBlobDsn) const;
    // Gives the path written, "" where there was nothing to write.
    std::string BLOB_SaveAs(const RecordSet& rsBlob, std::string_view strPath,
                            std::string_view strNewFileName = {}) const;
    // Gives the number of attachments copied.
    std::int32_t BLOB_Copy(std::string_view strSorceLinkDsn, std::string_view strDestLinkDsn) const;

    static std::span<const Operation> operations() noexcept;

  private:
    [[nodiscard]] std::int32_t kind_of(const RecordSet& rs) const;
};

}  // namespace cvdeveloper
