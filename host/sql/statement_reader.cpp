#include "host/sql/statement_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "host/sql/collation_places.h"
#include "host/sql/date_results.h"
#include "host/sql/result_names.h"

namespace cvdeveloper::standalone::sql {

namespace {

// The database takes 250,000 parameters; a list longer than this keeps its literals.
constexpr std::size_t most_parameters = 30000;

template <class Number>
std::optional<Number> parse(std::string_view text) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

bool has_comment(std::string_view gap) noexcept {
    return gap.find_first_of("-/") != std::string_view::npos;
}

std::optional<Value> number_in(std::string_view text) {
    if (const auto whole = parse<std::int64_t>(text)) {
        return *whole;
    }
    if (const auto number = parse<double>(text)) {
        return *number;
    }
    return std::nullopt;
}

bool are_different(std::string_view left, std::string_view right) {
    const auto one = parse<std::int64_t>(left);
    const auto other = parse<std::int64_t>(right);
    return one && other && *one != *other;
}

// "2026-03-01", without a time of day.
bool is_day(std::string_view text) noexcept {
    constexpr std::string_view form = "0000-00-00";
    return std::ranges::equal(text, form, [](char c, char expected) {
        return expected == '0' ? c >= '0' && c <= '9' : c == expected;
    });
}

}  // namespace

const ReadStatement& StatementReader::read(std::string_view statement) {
    statement_ = statement;
    tokenize(statement, tokens_);
    levels_.assign(1, Level{});
    places_.clear();
    insertions_.clear();
    texts_.clear();
    result_.text.clear();
    result_.values.clear();
    result_.asks_for_number = false;
    result_.same_for_all_texts = true;
    result_.broken = {};
    find_collation_places(tokens_, collation_places_);
    const std::vector<ResultTokens> unnamed = find_unnamed_results(tokens_, collation_places_);
    auto collated = collation_places_.begin();
    auto named = unnamed.begin();
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
        append_gap(i);
        places_.push_back(result_.text.size());
        read_token(i);
        if (collated != collation_places_.end() && *collated == i) {
            insert(" COLLATE CVTEXT");
            ++collated;
        }
        if (named != unnamed.end() && named->last == i) {
            insert_name(named->first);
            ++named;
        }
    }
    const std::string_view rest = statement.substr(tokens_.empty() ? 0 : tokens_.back().end());
    result_.same_for_all_texts = result_.same_for_all_texts && !has_comment(rest);
    result_.date_results = find_date_results(tokens_, dictionary_);
    result_.never_true = finds_never_true();
    return result_;
}

void StatementReader::insert(std::string_view text) {
    insertions_.push_back({.begin = result_.text.size(), .size = text.size()});
    result_.text += text;
}

void StatementReader::insert_name(std::size_t first_token) {
    std::string name = " AS \"";
    std::size_t at = places_[first_token];
    const auto append_up_to = [&](std::size_t end) {
        for (; at < end; ++at) {
            name += result_.text[at];
            // A quotation mark in a name is written twice.
            name.append(result_.text[at] == '"' ? 1 : 0, '"');
        }
    };
    for (const Insertion& insertion : insertions_) {
        if (insertion.begin >= at) {
            append_up_to(insertion.begin);
            at += insertion.size;
        }
    }
    append_up_to(result_.text.size());
    insert(name += '"');
}

void StatementReader::append_gap(std::size_t token) {
    const std::size_t begin = token == 0 ? 0 : tokens_[token - 1].end();
    const std::string_view gap = statement_.substr(begin, tokens_[token].begin - begin);
    // White space stays, since the text of an expression is the name of its column.
    result_.text += has_comment(gap) ? std::string_view(" ") : gap;
    // Comments, quoted names and bytes may hold quotes that begin no text.
    result_.same_for_all_texts = result_.same_for_all_texts && !has_comment(gap);
}

void StatementReader::read_token(std::size_t index) {
    const Token& token = tokens_[index];
    switch (token.kind) {
        case TokenKind::Name:
            read_name(index);
            return;
        case TokenKind::QuotedName:
            result_.same_for_all_texts = false;
            result_.text += token.text.front();
            result_.text += dictionary_.spelling().of(token.unquoted(), use_of(index));
            result_.text += token.text.back();
            return;
        case TokenKind::String:
            read_string(index);
            return;
        case TokenKind::Number:
            read_number(index);
            return;
        case TokenKind::Broken:
            result_.broken = token.text;
            break;
        case TokenKind::Operator:
            if (token.is("(")) {
                levels_.push_back(levels_.back());
                levels_.back().in_select_list = false;
            } else if (token.is(")") && levels_.size() > 1) {
                levels_.pop_back();
            }
            result_.same_for_all_texts = result_.same_for_all_texts && token.text.back() != '\'';
            break;
    }
    result_.text += token.text;
}

void StatementReader::read_name(std::size_t index) {
    const Token& token = tokens_[index];
    const Token* const next = at(index + 1);
    const bool in_path =
        (next != nullptr && next->is(".")) || (index > 0 && at(index - 1)->is("."));
    if (!in_path) {
        read_keyword(token);
    }
    // RIGHT and LEFT are words of joins to the database, and functions only in quotes.
    if (next != nullptr && next->is("(") &&
        (token.is_keyword("RIGHT") || token.is_keyword("LEFT"))) {
        result_.text.append("\"").append(token.text).append("\"");
        return;
    }
    constexpr std::string_view counter = "Kennung_";
    if (levels_.size() == 1 && levels_.back().in_select_list &&
        equal_names(token.text.substr(0, counter.size()), counter)) {
        result_.asks_for_number = true;
    }
    result_.text += dictionary_.spelling().of(token.text, use_of(index));
}

void StatementReader::read_keyword(const Token& token) {
    static constexpr std::array<std::string_view, 3> conditions = {"WHERE", "ON", "HAVING"};
    static constexpr std::array<std::string_view, 7> others = {
        "GROUP", "ORDER", "LIMIT", "UNION", "EXCEPT", "INTERSECT", "WINDOW"};
    const auto is = [&token](std::string_view word) { return token.is_keyword(word); };
    Level& level = levels_.back();
    if (is("SELECT")) {
        level = Level{.in_select_list = true};
    } else if (std::ranges::any_of(conditions, is)) {
        level = Level{.in_condition = true};
    } else if (is("FROM") || is("JOIN")) {
        level = Level{.in_tables = true};
    } else if (std::ranges::any_of(others, is)) {
        level = Level{};
    } else if (is("AS")) {
        level.keeps_literals = true;
    }
}

NameUse StatementReader::use_of(std::size_t index) const {
    const Token* const next = at(index + 1);
    const bool qualifies = next != nullptr && next->is(".");
    return qualifies || levels_.back().in_tables ? NameUse::Table : NameUse::Column;
}

bool StatementReader::may_lift(std::size_t index) const {
    const Level& level = levels_.back();
    const Token* const before = at(index - 1);
    return level.in_condition && !level.keeps_literals && result_.values.size() < most_parameters &&
           before != nullptr && !before->is_keyword("COLLATE");
}

void StatementReader::lift(Value value) {
    result_.values.push_back(value);
    result_.text += '?';
}

void StatementReader::read_string(std::size_t index) {
    const Token& token = tokens_[index];
    if (!may_lift(index)) {
        result_.same_for_all_texts = false;
        result_.text += token.text;
        return;
    }
    std::string_view text = text_of(token);
    result_.same_for_all_texts =
        result_.same_for_all_texts && text.data() == token.unquoted().data();
    if (is_compared_with_date(index)) {
        result_.same_for_all_texts = false;
        // Dates are kept with their time of day; one without is midnight.
        if (is_day(text)) {
            text = texts_.emplace_back(std::string(text) + " 00:00:00");
        }
    }
    lift(text);
    if (tokens_[index - 1].is_keyword("LIKE")) {
        result_.same_for_all_texts = false;
        add_range_of_like(index, text);
    }
}

// "x LIKE 'abc%'" becomes "(x LIKE 'abc%' AND x>='abc' AND x<'abc...')": the database finds the
// range in an index, where LIKE alone would make it look at every row.
void StatementReader::add_range_of_like(std::size_t index, std::string_view pattern) {
    const Token* const next = at(index + 1);
    const std::string_view prefix = pattern.substr(0, pattern.find_first_of("%_"));
    if (index < 2 || prefix.find_first_not_of(' ') == std::string_view::npos ||
        dictionary_.kind_of(tokens_[index - 2]) != ColumnKind::Text ||
        (next != nullptr && next->is_keyword("ESCAPE"))) {
        return;
    }
    const bool is_qualified = index >= 4 && tokens_[index - 3].is(".");
    const std::size_t begin = places_[is_qualified ? index - 4 : index - 2];
    const std::size_t end = places_[index - 2] + tokens_[index - 2].text.size();
    const std::string column = result_.text.substr(begin, end - begin);
    constexpr std::string_view last_character = "\U0010FFFD";
    result_.text.append(" AND ").append(column).append(">=");
    lift(prefix);
    result_.text.append(" AND ").append(column).append("<");
    lift(texts_.emplace_back(std::string(prefix).append(last_character)));
    result_.text += ')';
    result_.text.insert(begin, 1, '(');
}

void StatementReader::read_number(std::size_t index) {
    const Token& token = tokens_[index];
    // "1=2" stays: the database sees at once that no row can match.
    const Token* const before = index >= 2 ? at(index - 2) : nullptr;
    const Token* const after = at(index + 2);
    const bool compared = (before != nullptr && before->kind == TokenKind::Number &&
                           tokens_[index - 1].is_comparison()) ||
                          (after != nullptr && after->kind == TokenKind::Number &&
                           tokens_[index + 1].is_comparison());
    if (!compared && may_lift(index)) {
        if (const auto value = number_in(token.text)) {
            lift(*value);
            return;
        }
    }
    result_.text += token.text;
}

bool StatementReader::is_compared_with_date(std::size_t index) const {
    // Datum >= '...', Datum BETWEEN '...' AND '...', Datum IN ('...', '...')
    std::size_t column = index;
    const Token& before = tokens_[index - 1];
    if (before.is_comparison() || before.is_keyword("BETWEEN")) {
        column = index - 2;
    } else if (before.is_keyword("AND") && index >= 4 && tokens_[index - 3].is_keyword("BETWEEN")) {
        column = index - 4;
    } else if (before.is(",") || before.is("(")) {
        while (column > 0 &&
               (tokens_[column].kind == TokenKind::String || tokens_[column].is(","))) {
            --column;
        }
        column = column >= 2 && tokens_[column].is("(") && tokens_[column - 1].is_keyword("IN")
                     ? column - 2
                     : index;
    }
    if (column >= index) {
        return false;
    }
    if (tokens_[column].is_keyword("NOT") && column > 0) {
        --column;
    }
    return dictionary_.kind_of(tokens_[column]) == ColumnKind::Date;
}

std::string_view StatementReader::text_of(const Token& string_token) {
    const std::string_view text = string_token.unquoted();
    if (text.find('\'') == std::string_view::npos) {
        return text;
    }
    std::string& plain = texts_.emplace_back();
    for (std::size_t i = 0; i < text.size(); ++i) {
        plain += text[i];
        i += text[i] == '\'' ? 1U : 0U;
    }
    return plain;
}

bool StatementReader::finds_never_true() const {
    const auto is_select = [](const Token& token) { return token.is_keyword("SELECT"); };
    if (std::ranges::count_if(tokens_, is_select) != 1) {
        return false;
    }
    const auto where =
        std::ranges::find_if(tokens_, [](const Token& token) { return token.is_keyword("WHERE"); });
    auto left = where == tokens_.end() ? where : where + 1;
    const bool bracketed = left != tokens_.end() && left->is("(");
    left += bracketed ? 1 : 0;
    if (tokens_.end() - left < (bracketed ? 4 : 3)) {
        return false;
    }
    const auto after = left + (bracketed ? 4 : 3);
    return left->kind == TokenKind::Number && left[1].is("=") &&
           left[2].kind == TokenKind::Number && are_different(left->text, left[2].text) &&
           (!bracketed || left[3].is(")")) &&
           (after == tokens_.end() || after->is_keyword("ORDER"));
}

}  // namespace cvdeveloper::standalone::sql
