#include "host/database/sqlite/connection.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Made up by the database, in no order; reading them is quick, sorting them is not.
constexpr std::string_view numbers =
    "WITH RECURSIVE row(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM row LIMIT 600000) ";

class ALongSort : public ::testing::TestWithParam<const char*> {
  protected:
    [[nodiscard]] std::unique_ptr<Database> open(milliseconds limit) const {
        return std::make_unique<sqlite::Connection>(
            folder.path("test.db"), sqlite::OpenOptions{.create = true, .statement_limit = limit});
    }
    static milliseconds time_of(const std::function<void()>& action) {
        const auto begin = Clock::now();
        action();
        return std::chrono::duration_cast<milliseconds>(Clock::now() - begin);
    }
    static std::string statement() {
        return std::string(numbers) +
               "SELECT i, hex('0123456789012345678901234567890123456789') FROM row ORDER BY " +
               GetParam();
    }
    static void run(Database& database) {
        Rows rows(2);
        database.prepare(statement(), Author::Caller)->query({}, rows);
    }

    // Whether a limit that passes while the rows are being sorted stops that at once. False, too,
    // where the machine was much slower or faster for one run than for the other.
    [[nodiscard]] bool stops_in_time(std::string& why) const {
        const auto patient = open(milliseconds(0));
        const milliseconds whole = time_of([&] { run(*patient); });
        const milliseconds limit = whole * 6 / 10;
        const auto hasty = open(limit);
        std::int32_t number = 0;
        const milliseconds stopped = time_of([&] {
            try {
                run(*hasty);
            } catch (const AutomationError& error) {
                number = error.number();
            }
        });
        why = "error " + std::to_string(number) + " after " + std::to_string(stopped.count()) +
              " ms, the limit was " + std::to_string(limit.count()) + " of " +
              std::to_string(whole.count()) + " ms";
        return number == static_cast<std::int32_t>(HostError::StatementTooLong) &&
               stopped - limit < whole / 6;
    }

    TemporaryFolder folder;
};

TEST_P(ALongSort, StopsAtTheTimeLimit) {
    std::string why;
    for (int attempt = 0; attempt < 5; ++attempt) {
        if (stops_in_time(why)) {
            return;
        }
    }
    FAIL() << why;
}

INSTANTIATE_TEST_SUITE_P(OfTexts, ALongSort,
                         ::testing::Values("'Name ' || (i * 7919 % 1000003) COLLATE CVTEXT"));
INSTANTIATE_TEST_SUITE_P(OfNumbers, ALongSort, ::testing::Values("i * 7919 % 1000003"));

}  // namespace
}  // namespace cvdeveloper::standalone::testing
