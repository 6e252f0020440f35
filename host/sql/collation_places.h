#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "host/sql/token.h"

namespace cvdeveloper::standalone::sql {

// The tokens that need the users' way of comparing texts said after them, in ascending order.
// Columns bring it along; results of functions, of CASE and of "||", literals and names given with
// AS do not, neither in conditions nor as terms of ORDER BY and GROUP BY, after DISTINCT and in MAX
// and MIN.
void find_collation_places(std::span<const Token> tokens, std::vector<std::size_t>& places);

}  // namespace cvdeveloper::standalone::sql
