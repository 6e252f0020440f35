#include "platform/paths.h"

#include <gtest/gtest.h>

#include "platform/wildcards.h"

namespace cvdeveloper {
namespace {

TEST(Paths, BothSeparatorsDivideFolderAndName) {
    EXPECT_EQ(paths::split("C:\\Logs\\a.txt").folder, "C:\\Logs\\");
    EXPECT_EQ(paths::split("C:\\Logs\\a.txt").name, "a.txt");
    EXPECT_EQ(paths::split("/srv\\x/a").folder, "/srv\\x/");
    EXPECT_EQ(paths::split("a").folder, "");
    EXPECT_EQ(paths::split("a/").name, "");
}

TEST(Paths, JoiningGoesOnInTheFoldersOwnWay) {
    EXPECT_EQ(paths::join("C:\\Logs", "a"), "C:\\Logs\\a");
    EXPECT_EQ(paths::join("/srv", "a"), "/srv/a");
    const auto own = static_cast<char>(std::filesystem::path::preferred_separator);
    EXPECT_EQ(paths::join("/srv\\x", "a"), std::string("/srv\\x") + own + "a");
    EXPECT_EQ(paths::join("srv", "a"), std::string("srv") + own + "a");
    EXPECT_EQ(paths::join("/srv/", "a"), "/srv/a");
    EXPECT_EQ(paths::join("", "a"), "a");
}

TEST(Paths, SeparatorsAtTheEndGoButARootStays) {
    EXPECT_EQ(paths::without_end_separators("/srv/x//"), "/srv/x");
    EXPECT_EQ(paths::without_end_separators("C:\\x\\"), "C:\\x");
    EXPECT_EQ(paths::without_end_separators("/"), "/");
    EXPECT_EQ(paths::without_end_separators("C:\\"), "C:\\");
}

TEST(Wildcards, NamesMatchWithoutRegardToCase) {
    EXPECT_TRUE(matches_wildcards("Bild.JPG", "*.jpg"));
    EXPECT_TRUE(matches_wildcards("GRÖSSE", "gr?sse"));
    EXPECT_TRUE(matches_wildcards("a.b.c", "a*c"));
    EXPECT_TRUE(matches_wildcards("", "*"));
    EXPECT_FALSE(matches_wildcards("Bild.jpeg", "*.jpg"));
    EXPECT_FALSE(matches_wildcards("ab", "?"));
    EXPECT_FALSE(matches_wildcards("abcb", "*bc"));
    EXPECT_TRUE(matches_wildcards("abcbc", "*bc"));
}

TEST(Wildcards, AllNamesHaveTheFormOfStarDotStar) {
    EXPECT_TRUE(matches_wildcards("README", "*.*"));
}

}  // namespace
}  // namespace cvdeveloper
