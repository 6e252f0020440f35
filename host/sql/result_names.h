#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "host/sql/token.h"

namespace cvdeveloper::standalone::sql {

// The first and the last token of a result of SELECT.
struct ResultTokens {
    std::size_t first;
    std::size_t last;

    friend bool operator==(const ResultTokens&, const ResultTokens&) = default;
};

// Whether the token at an index stands behind the last result of a SELECT.
bool ends_results(std::span<const Token> tokens, std::size_t index);

// A result without "AS name", or "name" alone, behind it. Never empty where it was not.
std::span<const Token> without_result_name(std::span<const Token> result);

// The results that have no name of their own and one of the ascending places in them, by their last
// tokens. Their text is the name of their column, and is to stay so when something is put into it.
std::vector<ResultTokens> find_unnamed_results(std::span<const Token> tokens,
                                               std::span<const std::size_t> places);

}  // namespace cvdeveloper::standalone::sql
