#include "host/sql/names.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace cvdeveloper::standalone::sql {
namespace {

TEST(Names, AreEqualInAnyCaseUmlautsIncluded) {
    for (const auto& [left, right] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {"dsn", "DSN"},
             {"Km", "KM"},
             {"Projekte_Dsn", "PROJEKTE_DSN"},
             {"Priorität", "PRIORITÄT"},
             {"än_ben_dsn", "ÄN_BEN_DSN"},
             {"Ein_langer_Name_mit_Zahlen_2026", "ein_LANGER_name_MIT_zahlen_2026"},
             {"max(Datum) AS ÜBERSICHT", "MAX(datum) as übersicht"}}) {
        EXPECT_TRUE(equal_names(left, right)) << left;
        EXPECT_EQ(NameKey(left), NameKey(right)) << left;
        EXPECT_EQ(NameKey(left).hash(), NameKey(right).hash()) << left;
    }
}

TEST(Names, DifferInAllElse) {
    for (const auto& [left, right] : std::vector<std::pair<std::string, std::string>>{
             {"", "a"},
             {"a", "b"},
             {"a", "aa"},
             {"@", "`"},
             {"[x", "{x"},
             {"a_b", "a\x7F\x62"},
             {"Stichwort1", "Stichwort2"},
             {"aaaaaaaaaaaaaaab", "aaaaaaaaaaaaaaac"},
             {"baaaaaaaaaaaaaaaa", "caaaaaaaaaaaaaaaa"},
             {"aaaaaaaabaaaaaaaa", "aaaaaaaacaaaaaaaa"},
             {"Straße", "Strasse"},
             {"ä", "a"},
             {"×", "÷"}}) {
        EXPECT_FALSE(equal_names(left, right)) << left << ' ' << right;
        const NameKey key(left);
        EXPECT_FALSE(key == NameKey(right) && key.says_all()) << left << ' ' << right;
    }
}

TEST(Names, HaveKeysThatSayWhatComparingThemSays) {
    std::mt19937 random{1};
    const std::string letters = "aAbBzZ_@`[{1";
    const auto any = [&] {
        std::string name(random() % 20, ' ');
        for (char& c : name) {
            c = letters[random() % letters.size()];
        }
        return name;
    };
    for (int i = 0; i < 100000; ++i) {
        const std::string left = any();
        std::string right = random() % 4 == 0 ? any() : left;
        if (!right.empty()) {
            right[random() % right.size()] = letters[random() % letters.size()];
        }
        const NameKey key(left);
        const bool has_same_key = key == NameKey(right);
        if (equal_names(left, right)) {
            ASSERT_TRUE(has_same_key) << left << ' ' << right;
        } else {
            ASSERT_FALSE(has_same_key && key.says_all()) << left << ' ' << right;
        }
        ASSERT_EQ(key.says_all(), left.size() <= 16) << left;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::sql
