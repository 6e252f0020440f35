#include "platform/text.h"

#include <gtest/gtest.h>

namespace cvdeveloper {
namespace {

TEST(Text, LengthCountsUtf16Units) {
    EXPECT_EQ(length_in_units(""), 0U);
    EXPECT_EQ(length_in_units("Büro"), 4U);
    EXPECT_EQ(length_in_units("5 €"), 3U);
    EXPECT_EQ(length_in_units("🏠"), 2U);
}

TEST(Text, FirstUnitsNeverCutsACharacterInTwo) {
    EXPECT_EQ(first_units("Bürohaus", 4), "Büro");
    EXPECT_EQ(first_units("a🏠b", 2), "a");
    EXPECT_EQ(first_units("a🏠b", 3), "a🏠");
    EXPECT_EQ(first_units("kurz", 10), "kurz");
    EXPECT_EQ(first_units("kurz", 0), "");
}

TEST(Text, BytesThatAreNoCharacterCountOnceAndStayAsTheyAre) {
    const std::string broken = "a\xFF\xC3";
    EXPECT_EQ(length_in_units(broken), 3U);
    EXPECT_EQ(upper_case(broken), "A\xFF\xC3");
    EXPECT_EQ(upper_case("\xED\xA0\x80"), "\xED\xA0\x80");
}

TEST(Text, UpperCaseChangesEveryLetterButTheSharpS) {
    EXPECT_EQ(upper_case("Straße 5b, Ömer é ж"), "STRAßE 5B, ÖMER É Ж");
    EXPECT_EQ(lower_case("ÄÖÜ Straße ABC"), "äöü straße abc");
}

TEST(Text, EqualIgnoringCaseComparesLetterByLetter) {
    EXPECT_TRUE(equal_ignoring_case("VERTRÄGE", "Verträge"));
    EXPECT_TRUE(equal_ignoring_case("", ""));
    EXPECT_FALSE(equal_ignoring_case("Straße", "STRASSE"));
    EXPECT_FALSE(equal_ignoring_case("Frau", "Frau "));
    EXPECT_FALSE(equal_ignoring_case("ä", "a"));
}

TEST(Text, TrimBlanksLeavesTabsAndLineBreaks) {
    EXPECT_EQ(trim_blanks("  a b  "), "a b");
    EXPECT_EQ(trim_blanks(" \t a\r\n "), "\t a\r\n");
    EXPECT_EQ(trim_blanks("   "), "");
    EXPECT_EQ(trim_blanks(""), "");
}

TEST(Text, ReplaceAllReplacesEachOccurrenceOnce) {
    EXPECT_EQ(replace_all("a/b/c", "/", "//"), "a//b//c");
    EXPECT_EQ(replace_all("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replace_all("abc", "", "x"), "abc");
    EXPECT_EQ(replace_all("", "a", "x"), "");
}

TEST(Text, JoinedPutsThePiecesTogether) {
    EXPECT_EQ(joined({"a", "", "bc"}), "abc");
    EXPECT_EQ(joined({}), "");
}

TEST(Text, TakeFirstWalksAList) {
    std::string list = "a|b||c";
    EXPECT_EQ(take_first(list, "|"), "a");
    EXPECT_EQ(take_first(list, "|"), "b");
    EXPECT_EQ(take_first(list, "|"), "");
    EXPECT_EQ(list, "c");
    EXPECT_EQ(take_first(list, "|"), "c");
    EXPECT_EQ(list, "");
    EXPECT_EQ(take_first(list, "|"), "");
}

TEST(Text, TakeFirstSkipsTheWholeDelimiter) {
    std::string list = "a--b";
    EXPECT_EQ(take_first(list, "--"), "a");
    EXPECT_EQ(list, "b");
}

// An empty delimiter is found before the first character, so nothing is ever taken.
TEST(Text, TakeFirstWithAnEmptyDelimiterTakesNothing) {
    std::string list = "ab";
    EXPECT_EQ(take_first(list, ""), "");
    EXPECT_EQ(list, "ab");
}

}  // namespace
}  // namespace cvdeveloper
