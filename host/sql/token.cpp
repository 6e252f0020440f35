#include "host/sql/token.h"

#include <algorithm>
#include <array>

namespace cvdeveloper::standalone::sql {

namespace {

constexpr bool is_blank(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
constexpr bool is_digit(char c) noexcept {
    return c >= '0' && c <= '9';
}
// Everything beyond ASCII counts as a letter.
constexpr bool starts_name(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}
constexpr bool continues_name(char c) noexcept {
    return starts_name(c) || is_digit(c) || c == '$';
}
constexpr char upper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    void run(std::vector<Token>& tokens) {
        while (skip_gap()) {
            const std::size_t begin = at_;
            const TokenKind kind = scan();
            tokens.push_back({kind, begin, text_.substr(begin, at_ - begin)});
        }
    }

  private:
    [[nodiscard]] char peek(std::size_t ahead = 0) const noexcept {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
    }

    // Moves past white space and comments. False at the end of the statement. A block comment
    // without its end is left for scan() to report.
    bool skip_gap() {
        while (at_ < text_.size()) {
            if (is_blank(text_[at_])) {
                ++at_;
            } else if (peek() == '-' && peek(1) == '-') {
                at_ = std::min(text_.find('\n', at_), text_.size());
            } else if (peek() == '/' && peek(1) == '*') {
                const std::size_t end = text_.find("*/", at_ + 2);
                if (end == std::string_view::npos) {
                    return true;
                }
                at_ = end + 2;
            } else {
                return true;
            }
        }
        return false;
    }

    TokenKind scan() {
        const char first = peek();
        switch (first) {
            case '\'':
                return scan_quoted('\'', TokenKind::String);
            case '"':
            case '`':
                return scan_quoted(first, TokenKind::QuotedName);
            case '[':
                return scan_bracketed();
            default:
                break;
        }
        if (is_digit(first) || (first == '.' && is_digit(peek(1)))) {
            return scan_number();
        }
        if ((first == 'x' || first == 'X') && peek(1) == '\'') {
            return scan_byte_literal();
        }
        if (starts_name(first)) {
            while (continues_name(peek()) && at_ < text_.size()) {
                ++at_;
            }
            return TokenKind::Name;
        }
        return scan_operator();
    }

    TokenKind scan_quoted(char quote, TokenKind kind) {
        ++at_;
        while (at_ < text_.size()) {
            if (text_[at_] == quote) {
                if (peek(1) != quote) {
                    ++at_;
                    return kind;
                }
                ++at_;
            }
            ++at_;
        }
        return TokenKind::Broken;
    }

    TokenKind scan_bracketed() {
        const std::size_t end = text_.find(']', at_);
        at_ = end == std::string_view::npos ? text_.size() : end + 1;
        return end == std::string_view::npos ? TokenKind::Broken : TokenKind::QuotedName;
    }

    // x'0aff' stays in the statement as it is: no script compares bytes.
    TokenKind scan_byte_literal() {
        ++at_;
        return scan_quoted('\'', TokenKind::Operator);
    }

    // 12, 1.5, .5, 1e-3; what follows a number directly (12abc) belongs to it and is the
    // database's to refuse.
    TokenKind scan_number() {
        while (continues_name(peek()) || peek() == '.' ||
               ((peek() == '+' || peek() == '-') && upper(text_[at_ - 1]) == 'E' &&
                is_digit(peek(1)))) {
            if (at_ >= text_.size()) {
                break;
            }
            ++at_;
        }
        return TokenKind::Number;
    }

    TokenKind scan_operator() {
        if (peek() == '/' && peek(1) == '*') {
            at_ = text_.size();
            return TokenKind::Broken;
        }
        static constexpr std::array<std::string_view, 10> longer = {
            "<>", "<=", ">=", "!=", "==", "||", "<<", ">>", "->", "!<"};
        const std::string_view two = text_.substr(at_, 2);
        at_ += std::ranges::find(longer, two) != longer.end() ? 2 : 1;
        return TokenKind::Operator;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

bool Token::is_keyword(std::string_view upper_case_word) const noexcept {
    return kind == TokenKind::Name &&
           std::ranges::equal(text, upper_case_word, {}, [](char c) { return upper(c); });
}

bool Token::is_comparison() const noexcept {
    static constexpr std::array<std::string_view, 8> operators = {
        "=", "==", "<>", "!=", "<", "<=", ">", ">="};
    return kind == TokenKind::Operator && std::ranges::find(operators, text) != operators.end();
}

void tokenize(std::string_view statement, std::vector<Token>& tokens) {
    tokens.clear();
    Scanner(statement).run(tokens);
}

}  // namespace cvdeveloper::standalone::sql
