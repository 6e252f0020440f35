#include "host/sql/result_names.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace cvdeveloper::standalone::sql {

namespace {

// Words that want an operand behind them: what follows is no name of the result.
bool is_operator_word(const Token& token) {
    static constexpr std::array<std::string_view, 10> words = {
        "AND", "BETWEEN", "COLLATE", "ESCAPE", "FROM", "GLOB", "IN", "IS", "LIKE", "NOT"};
    return token.is_keyword("OR") || std::ranges::any_of(words, [&token](std::string_view word) {
               return token.is_keyword(word);
           });
}

// Reads the statement's SELECTs, brackets in brackets.
class Search {
  public:
    Search(std::span<const Token> tokens, std::span<const std::size_t> places)
        : tokens_(tokens), places_(places) {}

    std::vector<ResultTokens> run() {
        for (at_ = 0; at_ < tokens_.size(); ++at_) {
            read();
        }
        end_result();
        return std::move(found_);
    }

  private:
    static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

    void read() {
        const Token& token = tokens_[at_];
        std::size_t& begin = begins_.back();
        if (token.is("(")) {
            begins_.push_back(nowhere);
        } else if (token.is(")")) {
            end_result();
            if (begins_.size() > 1) {
                begins_.pop_back();
            }
        } else if (token.is_keyword("SELECT") ||
                   (begin == at_ && (token.is_keyword("DISTINCT") || token.is_keyword("ALL")))) {
            begin = at_ + 1;
        } else if (begin != nowhere && token.is(",")) {
            end_result();
            begin = at_ + 1;
        } else if (begin != nowhere && ends_results(tokens_, at_)) {
            end_result();
            begin = nowhere;
        }
    }

    void end_result() {
        const std::size_t begin = begins_.back();
        if (begin == nowhere || begin >= at_) {
            return;
        }
        const auto place = std::ranges::lower_bound(places_, begin);
        const auto result = tokens_.subspan(begin, at_ - begin);
        if (place != places_.end() && *place < at_ &&
            without_result_name(result).size() == result.size()) {
            found_.push_back({begin, at_ - 1});
        }
    }

    std::span<const Token> tokens_;
    std::span<const std::size_t> places_;
    // Of the result at hand, for each open bracket; nowhere outside of results.
    std::vector<std::size_t> begins_{nowhere};
    std::vector<ResultTokens> found_;
    std::size_t at_ = 0;
};

}  // namespace

bool ends_results(std::span<const Token> tokens, std::size_t index) {
    static constexpr std::array<std::string_view, 9> words = {
        "FROM", "WHERE", "GROUP", "ORDER", "HAVING", "LIMIT", "UNION", "EXCEPT", "INTERSECT"};
    const Token& token = tokens[index];
    const bool is_word = std::ranges::any_of(
        words, [&token](std::string_view word) { return token.is_keyword(word); });
    // A column may be called so, and there is IS DISTINCT FROM.
    const bool is_part =
        index > 0 && (tokens[index - 1].is(".") || tokens[index - 1].is_keyword("DISTINCT"));
    return token.is(";") || (is_word && !is_part);
}

std::span<const Token> without_result_name(std::span<const Token> result) {
    if (result.size() < 2) {
        return result;
    }
    const Token& last = result.back();
    const Token& before = result[result.size() - 2];
    if (before.is_keyword("AS")) {
        return result.size() > 2 ? result.first(result.size() - 2) : result;
    }
    const bool may_be_name = (last.kind == TokenKind::Name && !last.is_keyword("END")) ||
                             last.kind == TokenKind::QuotedName || last.kind == TokenKind::String;
    const bool ends_operand =
        before.is(")") || (before.kind != TokenKind::Operator && !is_operator_word(before));
    return may_be_name && ends_operand ? result.first(result.size() - 1) : result;
}

std::vector<ResultTokens> find_unnamed_results(std::span<const Token> tokens,
                                               std::span<const std::size_t> places) {
    return places.empty() ? std::vector<ResultTokens>() : Search(tokens, places).run();
}

}  // namespace cvdeveloper::standalone::sql
