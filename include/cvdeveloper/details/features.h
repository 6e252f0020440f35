#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Links between a record of any main table and the features of the catalogue. The link table of T
// is T in upper case with MKM behind it; duplicates are avoided here, not by the database.
class Features : public Topic {
  public:
    using Topic::Topic;

    bool Mkm_Exists(std::string_view strTable, std::string_view strLinkDsn,
                    std::string_view strMkmDSN) const;
    // An empty old key adds, an empty new key removes. True if a row was written.
    bool Mkm_Switch(std::string_view strTable, std::string_view strLinkDsn,
                    std::string_view strDSNOld, std::string_view strDSNNew) const;
    // Always false.
    bool Mkm_Add(std::string_view strTable, std::string_view strLinkDsn,
                 std::string_view strMkmDSNCommaList) const;
    bool Mkm_Del(std::string_view strTable, std::string_view strLinkDsn,
                 std::string_view strMkmDSNCommaList) const;
    std::string Mkm_Get(std::string_view strTable, std::string_view strLinkDsn) const;
    void Mkm_Copy(std::string_view strTable, std::string_view strSourceDsn,
                  std::string_view strDestDsn) const;

    static std::span<const Operation> operations() noexcept;

  private:
    [[nodiscard]] RecordSet links(std::string_view table, std::string_view link_key,
                                  std::string_view feature_key) const;
};

}  // namespace cvdeveloper
