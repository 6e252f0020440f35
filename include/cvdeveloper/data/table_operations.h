#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Operations on any table by its name: find, read and write a field, delete, copy fields. Table
// names, field names and conditions go into the statements as they stand; keys as the host's
// literals.
class TableOperations : public Topic {
  public:
    using Topic::Topic;

    RecordSet Sql_Find(std::string_view strTable, std::string_view strWhere,
                       std::string_view strOderBy = {}) const;
    std::string Sql_GetDSN(std::string_view strTable, std::string_view strWhere,
                           std::string_view strOderBy = {}) const;
    RecordSet Sql_FindByDSN(std::string_view strTable, std::string_view strDsn) const;
    RecordSet Sql_FindByKennung(std::string_view strTable, std::string_view strKennung) const;
    std::string Sql_FindDsnByKennung(std::string_view strTable, std::string_view strKennung) const;
    std::string Sql_GetField(std::string_view strTable, std::string_view strDsn,
                             std::string_view strFieldName) const;
    std::string Sql_GetKennung(std::string_view strTable, std::string_view strDsn,
                               bool blnWithBlank = true) const;
    bool Sql_SetField(std::string_view strTable, std::string_view strDsn,
                      std::string_view strFieldName, const Variant& varValue) const;
    bool SQL_Delete(RecordSet& rs) const;
    bool SQL_DeleteAll(RecordSet& rs) const;
    std::int32_t SQL_DeleteWhere(std::string_view strTable, std::string_view strWhere) const;
    void Sql_CopyFields(const RecordSet& rsSource, const RecordSet& rsDest,
                        std::string_view strNegFieldList = "|DSN|KENNUNG|STAMP|") const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
