#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// The human keys of new records ("K-100001"), one counter for each Kennung column of Std. The
// counters lie in a table of their own.
class Numbers {
  public:
    Numbers(Database& database, int digits) noexcept : database_(database), digits_(digits) {}

    // The next number of the counter; a counter that is missing begins with 1. Called in a
    // transaction, which keeps others from the counter until it ends.
    std::string take(std::string_view counter);
    // The last number that was given out, or "".
    std::string last(std::string_view counter);

  private:
    Statement& prepared(std::unique_ptr<Statement>& statement, std::string_view text);

    Database& database_;
    int digits_;
    std::unique_ptr<Statement> take_;
    std::unique_ptr<Statement> begin_;
    std::unique_ptr<Statement> last_;
};

}  // namespace cvdeveloper::standalone
