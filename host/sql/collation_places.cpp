#include "host/sql/collation_places.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "host/sql/names.h"
#include "host/sql/result_names.h"

namespace cvdeveloper::standalone::sql {

namespace {

template <std::size_t Count>
bool is_one_of(const Token& token, const std::array<std::string_view, Count>& words) {
    return std::ranges::any_of(words,
                               [&token](std::string_view word) { return token.is_keyword(word); });
}

// Words before a bracket that make it something else than the arguments of a function.
bool is_clause_word(const Token& token) {
    static constexpr std::array<std::string_view, 27> words = {
        "ALL",    "AND",    "ANY",    "AS",     "BETWEEN", "BY",    "CASE",   "DISTINCT", "ELSE",
        "EXISTS", "FILTER", "FROM",   "HAVING", "IN",      "JOIN",  "LIKE",   "NOT",      "ON",
        "OR",     "OVER",   "SELECT", "THEN",   "UNION",   "USING", "VALUES", "WHEN",     "WHERE"};
    return is_one_of(token, words);
}

bool ends_terms(const Token& token) {
    static constexpr std::array<std::string_view, 14> words = {
        "ASC",   "DESC",  "EXCEPT", "FROM",  "GROUPS", "HAVING", "INTERSECT",
        "LIMIT", "NULLS", "ORDER",  "RANGE", "ROWS",   "UNION",  "WINDOW"};
    return is_one_of(token, words);
}

bool is_comparison_word(const Token& token) {
    static constexpr std::array<std::string_view, 3> words = {"BETWEEN", "IN", "IS"};
    return is_one_of(token, words);
}

bool picks_greatest(const Token& token) {
    return token.is_keyword("MAX") || token.is_keyword("MIN");
}

class Search {
  public:
    Search(std::span<const Token> tokens, std::vector<std::size_t>& places)
        : tokens_(tokens), places_(places) {}

    void run() {
        find_aliases();
        for (at_ = 0; at_ < tokens_.size(); ++at_) {
            read();
        }
        end_term();
    }

  private:
    // What is compared with its like although no comparison stands beside it.
    enum class Terms : std::uint8_t {
        None,
        Sorted,     // of ORDER BY and its like
        Results,    // of SELECT DISTINCT
        Arguments,  // of MAX, of COUNT(DISTINCT ...)
    };
    struct Level {
        bool is_call = false;
        Terms terms = Terms::None;
        std::size_t term_begin = 0;
    };

    [[nodiscard]] bool is_name(std::size_t index) const {
        return index < tokens_.size() && (tokens_[index].kind == TokenKind::Name ||
                                          tokens_[index].kind == TokenKind::QuotedName);
    }

    void find_aliases() {
        for (std::size_t i = 0; i + 1 < tokens_.size(); ++i) {
            if (tokens_[i].is_keyword("AS") && tokens_[i + 1].kind == TokenKind::Name) {
                aliases_.push_back(tokens_[i + 1].text);
            }
        }
    }

    void read() {
        const Token& token = tokens_[at_];
        if (token.is("(")) {
            open_bracket();
        } else if (token.is(")")) {
            end_term();
            closed_call_ = levels_.back().is_call;
            if (levels_.size() > 1) {
                levels_.pop_back();
            }
        } else if (token.is_keyword("BY")) {
            begin_terms(Terms::Sorted);
        } else if (token.is_keyword("DISTINCT")) {
            begin_distinct();
        } else if (levels_.back().terms != Terms::None && token.is(",")) {
            end_term();
            levels_.back().term_begin = at_ + 1;
        } else if (levels_.back().terms != Terms::None && (token.is(";") || ends_terms_here())) {
            end_term();
            // After DESC and NULLS FIRST only the comma begins another term.
            levels_.back().term_begin = tokens_.size();
            if (levels_.back().terms == Terms::Results) {
                levels_.back().terms = Terms::None;
            }
        } else if (token.is_comparison() || is_comparison_word(token)) {
            compare();
        }
    }

    void open_bracket() {
        const bool is_call = at_ > 0 && is_name(at_ - 1) && !is_clause_word(tokens_[at_ - 1]);
        levels_.push_back({.is_call = is_call});
        if (is_call && picks_greatest(tokens_[at_ - 1])) {
            begin_terms(Terms::Arguments);
        }
    }

    // There is IS DISTINCT FROM, too.
    void begin_distinct() {
        if (at_ > 0 && tokens_[at_ - 1].is_keyword("SELECT")) {
            begin_terms(Terms::Results);
        } else if (at_ > 0 && tokens_[at_ - 1].is("(") && levels_.back().is_call) {
            begin_terms(Terms::Arguments);
        }
    }

    void begin_terms(Terms terms) {
        levels_.back().terms = terms;
        levels_.back().term_begin = at_ + 1;
    }

    [[nodiscard]] bool ends_terms_here() const {
        switch (levels_.back().terms) {
            case Terms::Sorted:
                return ends_terms(tokens_[at_]);
            case Terms::Results:
                return ends_results(tokens_, at_);
            default:
                return false;
        }
    }

    // The comparison at hand: its left operand decides.
    void compare() {
        if (at_ == 0) {
            return;
        }
        std::size_t last = at_ - 1;
        if (last > 0 && tokens_[last].is_keyword("NOT")) {
            --last;
        }
        const Token& token = tokens_[last];
        const bool is_result = (token.is(")") && closed_call_) || token.is_keyword("END");
        const bool is_joined = last > 0 && tokens_[begin_of_path(last) - 1].is("||");
        if (is_result || is_joined || token.kind == TokenKind::String) {
            place_after(last);
        }
    }

    // Where "AD.Name", which ends here, begins; at least 1.
    [[nodiscard]] std::size_t begin_of_path(std::size_t last) const {
        return last >= 3 && tokens_[last - 1].is(".") ? last - 2 : last;
    }

    void end_term() {
        const Level& level = levels_.back();
        if (level.terms == Terms::None || level.term_begin >= at_) {
            return;
        }
        std::span<const Token> term = tokens_.subspan(level.term_begin, at_ - level.term_begin);
        if (level.terms == Terms::Results) {
            term = without_result_name(term);
            if (term.back().is("*")) {
                return;
            }
        }
        if (needs_collation(term)) {
            place_after(level.term_begin + term.size() - 1);
        }
    }

    [[nodiscard]] bool needs_collation(std::span<const Token> term) const {
        const auto is_collate = [](const Token& token) { return token.is_keyword("COLLATE"); };
        if (std::ranges::any_of(term, is_collate)) {
            return false;
        }
        if (term.size() == 1 && term.front().kind == TokenKind::Name) {
            return std::ranges::any_of(aliases_, [&](std::string_view alias) {
                return equal_names(alias, term.front().text);
            });
        }
        const bool is_path = term.size() == 3 && term[1].is(".");
        return !is_path && !(term.size() == 1 && term.front().kind == TokenKind::QuotedName);
    }

    void place_after(std::size_t index) {
        if (places_.empty() || places_.back() < index) {
            places_.push_back(index);
        }
    }

    std::span<const Token> tokens_;
    std::vector<std::size_t>& places_;
    std::vector<std::string_view> aliases_;
    std::vector<Level> levels_{Level{}};
    std::size_t at_ = 0;
    bool closed_call_ = false;  // of the bracket closed last
};

}  // namespace

void find_collation_places(std::span<const Token> tokens, std::vector<std::size_t>& places) {
    places.clear();
    Search(tokens, places).run();
}

}  // namespace cvdeveloper::standalone::sql
