#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cvdeveloper::standalone::sql {

// What a statement has in common with all that differ from it in nothing but the texts between
// single quotes. Found by looking for quotes alone, which takes a tenth of the time of reading the
// statement, but is blind to comments, quoted names and doubled quotes: whether a fingerprint may
// stand for its statement is the reader's to say (ReadStatement::same_for_all_texts). What
// makes it refuse one lies outside the quotes, so it refuses all of the same fingerprint.
class Fingerprint {
  public:
    // False where a quote lacks its end. Valid until the next call, and as long as the statement.
    bool take(std::string_view statement);

    // The statement with nothing between its quotes.
    [[nodiscard]] std::string_view text() const noexcept { return text_; }
    // What stood between them, in order.
    [[nodiscard]] std::span<const std::string_view> literals() const noexcept { return literals_; }

  private:
    std::string text_;
    std::vector<std::string_view> literals_;
};

}  // namespace cvdeveloper::standalone::sql
