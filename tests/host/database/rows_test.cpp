#include "host/database/rows.h"

#include <gtest/gtest.h>

#include <string>

namespace cvdeveloper::standalone {
namespace {

// Rows of so many bytes of text that they fill some blocks of the pool.
Rows large_rows(const std::shared_ptr<BlockPool>& pool, std::size_t blocks) {
    Rows rows(2, pool);
    const std::string text(1000, 'x');
    for (std::size_t i = 0; i < blocks * BlockPool::block_size / text.size(); ++i) {
        const auto cells = rows.append();
        Rows::set_integer(cells[0], static_cast<std::int64_t>(i));
        rows.set_text(cells[1], text);
    }
    return rows;
}

TEST(RowsMemory, GoesBackToItsPoolAndComesFromThereAgain) {
    const auto pool = std::make_shared<BlockPool>();
    { const Rows rows = large_rows(pool, 3); }
    const std::size_t kept = pool->size();
    EXPECT_GE(kept, 2U);
    {
        Rows rows = large_rows(pool, 3);
        EXPECT_EQ(pool->size(), 0U);
        rows = Rows(2, pool);
        EXPECT_EQ(pool->size(), kept);
    }
    EXPECT_EQ(pool->size(), kept);
}

TEST(RowsMemory, IsKeptUpToALimit) {
    const auto pool = std::make_shared<BlockPool>();
    { const Rows rows = large_rows(pool, BlockPool::most_blocks + 5); }
    EXPECT_EQ(pool->size(), BlockPool::most_blocks);
}

TEST(RowsMemory, OfSmallResultsIsNoneOfThePools) {
    const auto pool = std::make_shared<BlockPool>();
    {
        Rows rows(2, pool);
        rows.append();
    }
    EXPECT_EQ(pool->size(), 0U);
}

TEST(RowsMemory, OutlivesThePoolsOwner) {
    auto pool = std::make_shared<BlockPool>();
    const Rows rows = large_rows(pool, 2);
    pool.reset();
    EXPECT_EQ(rows[rows.size() - 1][1].text(), std::string(1000, 'x'));
}

TEST(RowsMemory, OfANewRowIsNullEvenWhereItWasUsedBefore) {
    const auto pool = std::make_shared<BlockPool>();
    { const Rows rows = large_rows(pool, 3); }
    const Rows again = [&] {
        Rows rows(2, pool);
        for (int i = 0; i < 20000; ++i) {
            rows.append();
        }
        return rows;
    }();
    for (std::size_t i = 0; i < again.size(); ++i) {
        ASSERT_TRUE(again[i][0].is_null());
        ASSERT_FALSE(again[i][1].changed);
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone
