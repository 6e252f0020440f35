#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Records under a parent of the same table. A parent that does not exist counts as none; a record
// without a parent is its own root. A chain that loops is error 601 with the two human keys.
class Hierarchy : public Topic {
  public:
    using Topic::Topic;

    std::string AKT_GetParentAKTDsn(std::string_view strAktDsn) const;
    std::string AKT_GetRootAKTDsn(std::string_view strAktDsn) const;
    std::string OBJ_GetParentOBJDsn(std::string_view strObjDsn) const;
    std::string OBJ_GetRootOBJDsn(std::string_view strObjDsn) const;
    std::string PROJEKTE_GetParentProjekteDsn(std::string_view strProjekteDsn) const;
    std::string PROJEKTE_GetRootProjekteDsn(std::string_view strProjekteDsn) const;
    std::string AD_GetParentAdDsn(std::string_view strAdDsn) const;
    std::string AD_GetRootAdDsn(std::string_view strAdDsn) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
