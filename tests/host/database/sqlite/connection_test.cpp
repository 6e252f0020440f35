#include "host/database/sqlite/connection.h"

#include <gtest/gtest.h>

#include <chrono>

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

    TemporaryFolder folder;
};

TEST_P(ALongSort, StopsAtTheTimeLimit) {
    const auto run = [](Database& database) {
        Rows rows(2);
        database.prepare(statement(), Author::Caller)->query({}, rows);
    };
    const auto patient = open(milliseconds(0));
    const milliseconds whole = time_of([&] { run(*patient); });
    // By then the rows are read and being sorted.
    const milliseconds limit = whole * 6 / 10;
    const auto hasty = open(limit);
    milliseconds too_long = whole;
    // A machine that has much else to do may let it wait, but not each time.
    for (int attempt = 0; attempt < 3 && too_long >= whole / 6; ++attempt) {
        too_long =
            time_of([&] {
                const AutomationError error = error_of([&] { run(*hasty); });
                EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::StatementTooLong));
            }) -
            limit;
    }
    EXPECT_LT(too_long, whole / 6) << "of " << whole.count() << " ms";
}

INSTANTIATE_TEST_SUITE_P(OfTexts, ALongSort,
                         ::testing::Values("'Name ' || (i * 7919 % 1000003) COLLATE CVTEXT"));
INSTANTIATE_TEST_SUITE_P(OfNumbers, ALongSort, ::testing::Values("i * 7919 % 1000003"));

}  // namespace
}  // namespace cvdeveloper::standalone::testing
