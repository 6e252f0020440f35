#include "host/services/util.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <thread>

#include "cvdeveloper/automation/error.h"
#include "host/services/standard_util.h"

namespace cvdeveloper::standalone {
namespace {

TEST(Util, MakesLiteralsOfKeys) {
    Util util;
    EXPECT_EQ(util.SqlUid("A'B"), "'A''B'");
    EXPECT_EQ(util.SqlStrNull(""), Variant(Null{}));
    EXPECT_EQ(util.SqlStrNull(" "), Variant(" "));
}

TEST(Util, MakesKeysThatAreAllDifferent) {
    Util util;
    std::set<std::string> keys;
    for (int i = 0; i < 1000; ++i) {
        const std::string key = util.NewGUID();
        ASSERT_EQ(key.size(), 36U);
        ASSERT_EQ(key[14], '7');
        ASSERT_EQ(key.find_first_not_of("0123456789ABCDEF-"), std::string::npos);
        keys.insert(key);
    }
    EXPECT_EQ(keys.size(), 1000U);
}

TEST(Util, MakesLaterKeysThatSortBehindEarlierOnes) {
    Util util;
    std::string before = util.NewGUID();
    for (int i = 0; i < 50; ++i) {
        std::this_thread::sleep_for(std::chrono::microseconds(5));
        std::string key = util.NewGUID();
        ASSERT_GT(key, before);
        before = std::move(key);
    }
}

TEST(Util, ConvertsWithoutStumblingOverNull) {
    Util util;
    EXPECT_EQ(util.k(Null{}), Variant(""));
    EXPECT_EQ(util.k(1.5), Variant("1,5"));
    EXPECT_EQ(util.d(Null{}), Variant(0.0));
    EXPECT_EQ(util.d("  "), Variant(0.0));
    EXPECT_EQ(util.d("1,5"), Variant(1.5));
    EXPECT_THROW(util.d("viel"), AutomationError);
    EXPECT_EQ(util.b(Null{}), Variant(false));
    EXPECT_EQ(util.b(""), Variant(false));
    EXPECT_EQ(util.b(std::int16_t{-1}), Variant(true));
}

TEST(Util, TakesTheExtensionOffAFileName) {
    Util util;
    EXPECT_EQ(util.GetFileExtender("C:\\a.b\\c.JPG"), "JPG");
    EXPECT_EQ(util.GetFileExtender("/a.b/c"), "");
    EXPECT_EQ(util.call("GetFileExtender", "x.tar.gz"), Variant("gz"));
}

TEST(StandardUtil, CutsTheEndOffInPlace) {
    StandardUtil util;
    std::string text = "C:\\Logs\\";
    util.CutRight(text, "\\");
    EXPECT_EQ(text, "C:\\Logs");
    util.CutRight(text, "\\");
    EXPECT_EQ(text, "C:\\Logs");
}

}  // namespace
}  // namespace cvdeveloper::standalone
