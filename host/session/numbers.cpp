#include "host/session/numbers.h"

#include <algorithm>

namespace cvdeveloper::standalone {

namespace {

// Searches for a human key pad it to this width, so it is kept that wide.
constexpr std::size_t width = 10;

}  // namespace

// Two plain statements cost a third of one that returns what it has written.
std::string Numbers::take(std::string_view counter) {
    const Value name = counter;
    const auto execute = [&](std::unique_ptr<Statement>& statement, std::string_view text) {
        return prepared(statement, text).execute({&name, 1});
    };
    if (execute(take_, "UPDATE cv_counter SET last_number = last_number + 1 WHERE name = ?") == 0) {
        execute(begin_, "INSERT INTO cv_counter (name, prefix, last_number) VALUES (?, '', 1)");
    }
    return last(counter);
}

Statement& Numbers::prepared(std::unique_ptr<Statement>& statement, std::string_view text) {
    if (statement == nullptr) {
        statement = database_.prepare(text, Author::Host);
    }
    return *statement;
}

std::string Numbers::last(std::string_view counter) {
    Rows rows(2);
    const Value name = counter;
    prepared(last_, "SELECT prefix, last_number FROM cv_counter WHERE name = ?")
        .query({&name, 1}, rows);
    if (rows.size() == 0) {
        return {};
    }
    const std::string digits = std::to_string(rows[0][1].integer);
    std::string key(rows[0][0].is_null() ? std::string_view() : rows[0][0].text());
    key.append(static_cast<std::size_t>(digits_) -
                   std::min(digits.size(), static_cast<std::size_t>(digits_)),
               '0');
    key += digits;
    key.append(width - std::min(key.size(), width), ' ');
    return key;
}

}  // namespace cvdeveloper::standalone
