#include "host/sql/date_results.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace cvdeveloper::standalone::sql {

namespace {

// Gives one of its arguments as it is.
bool picks_argument(const Token& token) {
    static constexpr std::array<std::string_view, 5> functions = {"MAX", "MIN", "COALESCE",
                                                                  "IFNULL", "NULLIF"};
    return std::ranges::any_of(functions,
                               [&token](std::string_view name) { return token.is_keyword(name); });
}

std::span<const Token> without_alias(std::span<const Token> item) {
    const bool has_alias = item.size() >= 2 && item[item.size() - 2].is_keyword("AS");
    return has_alias ? item.first(item.size() - 2) : item;
}

// MAX(AKT.Datum), IFNULL(MAX(Datum), Datum_Bis): such functions, dates and nothing else.
bool gives_date(std::span<const Token> item, const Dictionary& dictionary) {
    if (item.size() < 4 || !picks_argument(item.front()) || !item[1].is("(") ||
        !item.back().is(")")) {
        return false;
    }
    bool has_date = false;
    for (std::size_t i = 0; i < item.size(); ++i) {
        const Token& token = item[i];
        const bool qualifies = i + 1 < item.size() && item[i + 1].is(".");
        if (dictionary.kind_of(token) == ColumnKind::Date && !qualifies) {
            has_date = true;
        } else if (!qualifies && !picks_argument(token) && !token.is("(") && !token.is(")") &&
                   !token.is(",") && !token.is(".")) {
            return false;
        }
    }
    return has_date;
}

}  // namespace

std::vector<std::size_t> find_date_results(std::span<const Token> tokens,
                                           const Dictionary& dictionary) {
    std::vector<std::size_t> found;
    if (tokens.empty() || !tokens.front().is_keyword("SELECT")) {
        return found;
    }
    std::size_t position = 0;
    std::size_t begin = 1;
    int depth = 0;
    for (std::size_t i = 1; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        depth += token.is("(") ? 1 : 0;
        depth -= token.is(")") ? 1 : 0;
        if (depth != 0) {
            continue;
        }
        const bool is_end = token.is_keyword("FROM");
        if (is_end || token.is(",")) {
            const auto item = tokens.subspan(begin, i - begin);
            if (!item.empty() && item.back().is("*")) {
                return found;
            }
            if (gives_date(without_alias(item), dictionary)) {
                found.push_back(position);
            }
            ++position;
            begin = i + 1;
        }
        if (is_end) {
            return found;
        }
    }
    return found;
}

}  // namespace cvdeveloper::standalone::sql
