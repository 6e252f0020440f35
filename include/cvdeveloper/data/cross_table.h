#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The statement that lists the rows of a main table with detail values beside them, one column for
// each. It is only built, not sent.
class CrossTable : public Topic {
  public:
    using Topic::Topic;

    // A detail column is asked for as "Zimmer", "Preis.Von_Num" or "Lage=Kürzel#LAGE1": a name, the
    // detail column to show, the column and the value that find the field kind. Error -2147221504
    // "Keine Feldart in strDetailPipeList angegeben" where none is asked for.
    std::string Sql_CrossTable(std::string_view strMainTable, std::string_view strTblFieldPipeList,
                               std::string_view strDetailPipeList, std::string_view strWhere = {},
                               std::string_view strOrderBy = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
