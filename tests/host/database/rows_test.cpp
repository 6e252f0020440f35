#include "host/database/rows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cvdeveloper::standalone {
namespace {

// Rows of so many bytes of text that they fill some blocks of the pool.
Rows large_rows(const std::shared_ptr<BlockPool>& pool, std::size_t blocks) {
    Rows rows(2, pool);
    const std::string text(1000, 'x');
    RowRoom room(2);
    for (std::size_t i = 0; i < blocks * BlockPool::block_size / text.size(); ++i) {
        RowInHand row(room);
        row.add_integer(static_cast<std::int64_t>(i));
        row.add_text(text);
        rows.append(row);
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
        rows.append_editable(std::vector<Cell>(2));
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
    Rows again(2, pool);
    RowRoom room(2);
    for (std::size_t i = 0; i < 20000; i += 2) {
        RowInHand row(room);
        row.add_null();
        row.add_integer(1);
        again.append(row);
        again.append_editable(std::vector<Cell>(2));
        ASSERT_TRUE(again[i][0].is_null());
        ASSERT_FALSE(again[i][1].changed);
        ASSERT_TRUE(again.edit(i)[0].is_null());
        ASSERT_FALSE(again[i][1].changed);
        ASSERT_TRUE(again[i + 1][0].is_null());
        ASSERT_FALSE(again[i + 1][1].changed);
    }
}

// Blocks of the pool that a result of so many rows of 81 fields takes, all of them null but one.
std::size_t blocks_for_rows_of_nulls(std::size_t count) {
    const auto pool = std::make_shared<BlockPool>();
    {
        Rows rows(81, pool);
        RowRoom room(81);
        for (std::size_t i = 0; i < count; ++i) {
            RowInHand row(room);
            for (int column = 0; column < 80; ++column) {
                row.add_null();
            }
            row.add_integer(1);
            rows.append(row);
        }
    }
    return pool->size();
}

TEST(RowsMemory, IsNotTakenByNulls) {
    EXPECT_LE(blocks_for_rows_of_nulls(10000), 10000 * sizeof(Cell) / BlockPool::block_size + 1);
}

// Where the nulls are changes from row to row, kinds and lengths do too.
Rows mixed_rows(std::size_t columns, std::size_t count) {
    Rows rows(columns);
    RowRoom room(columns);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text(i % 40, 't');
        RowInHand row(room);
        for (std::size_t column = 0; column < columns; ++column) {
            switch ((i / 3 + column * column) % 6) {
                case 0:
                    row.add_integer(static_cast<std::int64_t>(i));
                    break;
                case 1:
                    row.add_double(0.5);
                    break;
                case 2:
                    row.add_text(text);
                    break;
                case 3:
                    row.add_bytes({});
                    break;
                default:
                    row.add_null();
                    break;
            }
        }
        rows.append(row);
    }
    return rows;
}

void expect_mixed(const Row& row, std::size_t i) {
    for (std::size_t column = 0; column < row.size(); ++column) {
        const Cell& cell = row[column];
        switch ((i / 3 + column * column) % 6) {
            case 0:
                ASSERT_EQ(cell.kind, CellKind::Integer);
                ASSERT_EQ(cell.integer, static_cast<std::int64_t>(i));
                break;
            case 1:
                ASSERT_EQ(cell.kind, CellKind::Double);
                ASSERT_EQ(cell.number, 0.5);
                break;
            case 2:
                ASSERT_EQ(cell.kind, CellKind::Text);
                ASSERT_EQ(cell.text(), std::string(i % 40, 't'));
                break;
            case 3:
                ASSERT_EQ(cell.kind, CellKind::Bytes);
                ASSERT_EQ(cell.size, 0U);
                break;
            default:
                ASSERT_TRUE(cell.is_null());
                break;
        }
    }
}

TEST(ARow, HasWhatWasPutIntoItWhereverItsNullsAre) {
    for (const std::size_t columns : {1U, 2U, 7U, 80U, 300U}) {
        const Rows rows = mixed_rows(columns, 500);
        ASSERT_EQ(rows.size(), 500U);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            ASSERT_EQ(rows[i].size(), columns);
            expect_mixed(rows[i], i);
        }
    }
}

TEST(ARow, StaysAsItWasWhenItIsEdited) {
    Rows rows = mixed_rows(10, 50);
    std::vector<Row> before;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        before.push_back(rows[i]);
        for (Cell& cell : rows.edit(i)) {
            ASSERT_FALSE(cell.changed);
            set_integer(cell, -1);
        }
        expect_mixed(before.back(), i);
        // Once more: the row is whole now.
        before.push_back(rows[i]);
        set_null(rows.edit(i)[3]);
        rows.set_text(rows.editable(i)[4], "neu");
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        expect_mixed(before[2 * i], i);
        EXPECT_EQ(before[2 * i + 1][3].integer, -1);
        EXPECT_TRUE(rows[i][3].is_null());
        EXPECT_EQ(rows[i][4].text(), "neu");
        EXPECT_EQ(rows[i][5].integer, -1);
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone
