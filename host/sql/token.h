#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cvdeveloper::standalone::sql {

enum class TokenKind : std::uint8_t {
    Name,        // plain identifier or keyword
    QuotedName,  // "name", [name] or `name`
    String,      // 'text', '' standing for one quote
    Number,
    Operator,
    Broken,  // a quote or comment without its end; reaches to the end of the statement
};

// A piece of a statement. What lies between two tokens is white space or a comment.
struct Token {
    TokenKind kind;
    std::size_t begin;
    std::string_view text;

    [[nodiscard]] std::size_t end() const noexcept { return begin + text.size(); }
    [[nodiscard]] bool is(std::string_view operator_text) const noexcept {
        return kind == TokenKind::Operator && text == operator_text;
    }
    // A plain identifier equal to the keyword, which is given in upper case.
    [[nodiscard]] bool is_keyword(std::string_view upper_case_word) const noexcept;
    // "=" and its like.
    [[nodiscard]] bool is_comparison() const noexcept;
    // A name, or what a quoted name or text has between its quotes.
    [[nodiscard]] std::string_view unquoted() const noexcept {
        const bool has_quotes = kind == TokenKind::QuotedName || kind == TokenKind::String;
        return has_quotes ? text.substr(1, text.size() - 2) : text;
    }
};

// Takes the statement apart. Never fails: every byte that is no white space and no comment lands
// in exactly one token.
void tokenize(std::string_view statement, std::vector<Token>& tokens);

}  // namespace cvdeveloper::standalone::sql
