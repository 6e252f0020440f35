#include "host/database/sqlite/memory_files.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstddef>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

using Bytes = std::vector<unsigned char>;

// A file without a name, used as the database uses it.
class AFileWithoutAName : public ::testing::Test {
  protected:
    AFileWithoutAName() {
        constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXCLUSIVE |
                              SQLITE_OPEN_DELETEONCLOSE | SQLITE_OPEN_TEMP_JOURNAL;
        EXPECT_EQ(system_->xOpen(system_, nullptr, file(), flags, nullptr), SQLITE_OK);
    }
    ~AFileWithoutAName() override { file()->pMethods->xClose(file()); }
    AFileWithoutAName(const AFileWithoutAName&) = delete;
    AFileWithoutAName& operator=(const AFileWithoutAName&) = delete;

    sqlite3_file* file() { return reinterpret_cast<sqlite3_file*>(room_.data()); }
    void write(const Bytes& bytes, sqlite3_int64 at) {
        EXPECT_EQ(
            file()->pMethods->xWrite(file(), bytes.data(), static_cast<int>(bytes.size()), at),
            SQLITE_OK);
    }
    // What is not there reads as zeros; the database is told of it.
    Bytes read(std::size_t count, sqlite3_int64 at, int result = SQLITE_OK) {
        Bytes bytes(count, 0xEE);
        EXPECT_EQ(file()->pMethods->xRead(file(), bytes.data(), static_cast<int>(count), at),
                  result);
        return bytes;
    }
    void truncate(sqlite3_int64 size) {
        EXPECT_EQ(file()->pMethods->xTruncate(file(), size), SQLITE_OK);
    }
    sqlite3_int64 size() {
        sqlite3_int64 size = -1;
        EXPECT_EQ(file()->pMethods->xFileSize(file(), &size), SQLITE_OK);
        return size;
    }

  private:
    sqlite3_vfs* system_ = sqlite3_vfs_find(sqlite::file_system_with_memory_files());
    std::vector<std::max_align_t> room_{static_cast<std::size_t>(system_->szOsFile)};
};

TEST_F(AFileWithoutAName, HoldsWhatIsWrittenWhereverThatIs) {
    Bytes large(1'000'000);
    for (std::size_t i = 0; i < large.size(); ++i) {
        large[i] = static_cast<unsigned char>(i * 31 / 7);
    }
    write(large, 3);
    EXPECT_EQ(size(), 1'000'003);
    EXPECT_EQ(read(large.size(), 3), large);
    write({1, 2, 3}, 262'142);  // across the end of a block
    EXPECT_EQ(read(5, 262'141), (Bytes{large[262'138], 1, 2, 3, large[262'142]}));
    EXPECT_EQ(size(), 1'000'003);
}

TEST_F(AFileWithoutAName, ReadsAsZerosWhereNothingWasWritten) {
    write({7}, 300'000);
    EXPECT_EQ(read(3, 299'998), (Bytes{0, 0, 7}));
    EXPECT_EQ(read(3, 300'000, SQLITE_IOERR_SHORT_READ), (Bytes{7, 0, 0}));
    EXPECT_EQ(read(2, 9'000'000, SQLITE_IOERR_SHORT_READ), (Bytes{0, 0}));
}

TEST_F(AFileWithoutAName, ForgetsWhatIsCutOff) {
    write(Bytes(600'000, 9), 0);
    truncate(10);
    EXPECT_EQ(size(), 10);
    write({7}, 20);
    EXPECT_EQ(read(4, 8), (Bytes{9, 9, 0, 0}));
    truncate(1'000'000);
    EXPECT_EQ(size(), 21);
    truncate(0);
    EXPECT_EQ(read(1, 0, SQLITE_IOERR_SHORT_READ), (Bytes{0}));
}

// What is kept there is more than the database keeps in its cache.
class ALargeResult : public HostTest {
  protected:
    static constexpr std::string_view rows =
        "WITH RECURSIVE row(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM row LIMIT 400000), "
        "text(x) AS (SELECT hex('0123456789012345678901234567890123456789') || (1000000 + i * 7919 "
        "% 400009) FROM row) ";
    RecordSet select_of_rows(std::string_view rest) {
        return select(std::string(rows).append(rest));
    }
};

TEST_F(ALargeResult, ComesInItsOrder) {
    const RecordSet rs = select_of_rows("SELECT x FROM text ORDER BY x DESC");
    std::string before = "9";
    std::size_t count = 0;
    for (; !rs.at_end(); rs.move_next()) {
        const std::string text = to_text(rs.value_at(0));
        ASSERT_LT(text, before);
        before = text;
        ++count;
    }
    EXPECT_EQ(count, 400'000U);
}

TEST_F(ALargeResult, HasEachRowOnceWhereThatIsAskedFor) {
    EXPECT_EQ(to_text(select_of_rows("SELECT count(*) FROM (SELECT DISTINCT x FROM (SELECT x FROM "
                                     "text UNION ALL SELECT x FROM text))")
                          .value_at(0)),
              "400000");
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
