#include "platform/windows/utf16.h"

#include <gtest/gtest.h>

namespace cvdeveloper {
namespace {

TEST(Utf16, EveryCharacterGoesThereAndBack) {
    for (const char* text : {"", "abc", "Straße 5 €", "🏠 Büro", "ж"}) {
        EXPECT_EQ(to_utf8(to_utf16(text)), text);
    }
    EXPECT_EQ(to_utf16("€🏠"), L"€\xD83C\xDFE0");
}

TEST(Utf16, ZerosAreOrdinaryCharacters) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(to_utf16(text).size(), 3U);
    EXPECT_EQ(to_utf8(to_utf16(text)), text);
}

TEST(Utf16, BytesThatAreNoCharacterComeBackAsTheyWere) {
    const std::string broken = "a\xFF\xC3";
    EXPECT_EQ(to_utf8(to_utf16(broken)), broken);
}

TEST(Utf16, HalfACharacterBecomesTheReplacementCharacter) {
    EXPECT_EQ(to_utf8(L"a\xD83C"), "a\uFFFD");
    EXPECT_EQ(to_utf8(L"\xDFE0z"), "\uFFFDz");
}

}  // namespace
}  // namespace cvdeveloper
