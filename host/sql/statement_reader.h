#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "host/database/value.h"
#include "host/sql/dictionary.h"
#include "host/sql/names.h"
#include "host/sql/token.h"

namespace cvdeveloper::standalone::sql {

// What the database gets to see of a statement.
struct ReadStatement {
    // With the schema's spelling of names, and "?" for the literals of conditions: the same for
    // all statements that differ in nothing but their literals.
    std::string text;
    std::vector<Value> values;  // borrowed from the statement and the reader
    // The one condition is a false comparison of two numbers ("1=2").
    bool never_true = false;
    // The select list names a column that gives out numbers ("Kennung_AKT").
    bool asks_for_number = false;
    // Other texts between the same quotes would read alike: the same text, their own as values.
    bool same_for_all_texts = true;
    // Positions of results that are dates, though the database calls them texts.
    std::vector<std::size_t> date_results;
    std::string_view broken;  // the quote or comment without its end, if there is one
};

// Reads a caller's statement once, from token to token. Literals of conditions become parameters;
// those of select lists, sort terms, aliases and types stay, because there they are names,
// positions or part of a type.
class StatementReader {
  public:
    explicit StatementReader(const Dictionary& dictionary) : dictionary_(dictionary) {}

    // Valid until the next call, and as long as the statement.
    const ReadStatement& read(std::string_view statement);

  private:
    struct Level {
        bool in_condition = false;
        bool in_select_list = false;
        bool in_tables = false;       // between FROM or JOIN and the next word of its kind
        bool keeps_literals = false;  // inside a type, as in CAST(x AS CHAR(36))
    };

    void append_gap(std::size_t token);
    // Something that the statement does not have, and its results' names must not have.
    void insert(std::string_view text);
    // The text of a result since its first token, as the name of its column.
    void insert_name(std::size_t first_token);
    void read_token(std::size_t index);
    void read_name(std::size_t index);
    void read_keyword(const Token& token);
    void read_string(std::size_t index);
    void read_number(std::size_t index);
    void lift(Value value);
    [[nodiscard]] bool may_lift(std::size_t index) const;
    [[nodiscard]] NameUse use_of(std::size_t index) const;
    void add_range_of_like(std::size_t index, std::string_view pattern);
    [[nodiscard]] bool is_compared_with_date(std::size_t index) const;
    [[nodiscard]] std::string_view text_of(const Token& string_token);
    [[nodiscard]] bool finds_never_true() const;
    [[nodiscard]] const Token* at(std::size_t index) const noexcept {
        return index < tokens_.size() ? &tokens_[index] : nullptr;
    }

    const Dictionary& dictionary_;
    std::string_view statement_;
    std::vector<Token> tokens_;
    std::vector<std::size_t> collation_places_;
    struct Insertion {
        std::size_t begin;
        std::size_t size;
    };
    std::vector<Insertion> insertions_;  // in the text read so far
    std::vector<std::size_t> places_;    // of the tokens in the text read so far
    std::vector<Level> levels_;
    std::deque<std::string> texts_;  // literals that differ from their spelling
    ReadStatement result_;
};

}  // namespace cvdeveloper::standalone::sql
