#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "host/sql/dictionary.h"

namespace cvdeveloper::standalone::sql {

// The positions in a result of expressions that give one of the dates they are made of, such as
// MAX(Datum). The database calls them texts. Those behind a "*" are not found: their position is
// not to be seen in the statement.
std::vector<std::size_t> find_date_results(std::span<const Token> tokens,
                                           const Dictionary& dictionary);

}  // namespace cvdeveloper::standalone::sql
