#include "host/sql/text_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace cvdeveloper::standalone::sql {
namespace {

bool equal(std::string_view left, std::string_view right) {
    return compare_texts(left, right) == 0 && compare_texts(right, left) == 0;
}

TEST(TextOrder, TakesNoNoticeOfCaseAndTrailingBlanks) {
    EXPECT_TRUE(equal("Müller", "MÜLLER  "));
    EXPECT_TRUE(equal("straße", "STRAßE"));
    EXPECT_TRUE(equal("", "   "));
    EXPECT_TRUE(equal("éÉ", "ÉÉ"));
    EXPECT_FALSE(equal(" a", "a"));
}

TEST(TextOrder, TellsUmlautsFromTheirBaseLetters) {
    EXPECT_FALSE(equal("Muller", "Müller"));
    EXPECT_FALSE(equal("Strasse", "Straße"));
    EXPECT_FALSE(equal("Mueller", "Müller"));
}

TEST(TextOrder, SortsUmlautsWithTheirBaseLetters) {
    std::vector<std::string> names = {"Ozean",  "öl",        "Olm", "Zoo", "Ola",
                                      "Ölberg", "österlich", "aß",  "as",  "at"};
    std::ranges::sort(names, [](const auto& a, const auto& b) { return compare_texts(a, b) < 0; });
    EXPECT_EQ(names, (std::vector<std::string>{"as", "aß", "at", "öl", "Ola", "Ölberg", "Olm",
                                               "österlich", "Ozean", "Zoo"}));
}

TEST(TextOrder, IsAnOrder) {
    std::mt19937 random(3);
    const std::vector<std::string> letters = {"a", "A", "ä", "Ä", "b", " ",
                                              "ß", "s", "z", "-", "é", "中"};
    const auto word = [&] {
        std::string text;
        for (std::size_t i = random() % 5; i > 0; --i) {
            text += letters[random() % letters.size()];
        }
        return text;
    };
    for (int round = 0; round < 20000; ++round) {
        const std::string a = word();
        const std::string b = word();
        const std::string c = word();
        ASSERT_EQ(compare_texts(a, b) < 0, compare_texts(b, a) > 0) << a << "|" << b;
        if (compare_texts(a, b) <= 0 && compare_texts(b, c) <= 0) {
            ASSERT_LE(compare_texts(a, c), 0) << a << "|" << b << "|" << c;
        }
    }
}

// Texts are compared in steps of eight bytes up to their first difference.
TEST(TextOrder, IsTheSameBehindACommonBeginning) {
    std::mt19937 random(5);
    const std::vector<std::string> letters = {"a", "A", "ä", "Ä", "b", " ", "\t", "ß", "-", "中"};
    const auto word = [&](std::size_t length) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i) {
            text += letters[random() % letters.size()];
        }
        return text;
    };
    for (int round = 0; round < 20000; ++round) {
        const std::string beginning = word(random() % 20) + "x";
        const std::string a = word(random() % 12);
        const std::string b = word(random() % 12);
        ASSERT_EQ(compare_texts(beginning + a, beginning + b), compare_texts(a, b))
            << beginning << "|" << a << "|" << b;
    }
}

TEST(Like, KnowsItsWildcards) {
    EXPECT_TRUE(is_like("landDE  ", "land%", 0));
    EXPECT_TRUE(is_like("Müller", "MÜ_LER", 0));
    EXPECT_TRUE(is_like("abcabd", "%ab_", 0));
    EXPECT_TRUE(is_like("", "%", 0));
    EXPECT_FALSE(is_like("", "_", 0));
    EXPECT_FALSE(is_like("Muller", "Mü%", 0));
    EXPECT_TRUE(is_like("K-100   ", "K-100", 0));
    EXPECT_TRUE(is_like("K-100", "K-100   ", 0));
    EXPECT_TRUE(is_like("K-100   ", "K-100 %", 0));
    EXPECT_TRUE(is_like("50%", "50!%", U'!'));
    EXPECT_FALSE(is_like("50 Euro", "50!%", U'!'));
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
