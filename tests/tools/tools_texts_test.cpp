#include <gtest/gtest.h>

#include <set>
#include <utility>
#include <vector>

#include "cvdeveloper/tools/tools.h"
#include "platform/clock.h"
#include "support/expect_error.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

class ToolsTexts : public testing::Test {
  protected:
    Ref<clsTools> tools = make_object<clsTools>();
};

TEST_F(ToolsTexts, DeleteFirstWalksAList) {
    Variant list = "a|b|c";
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "a");
    EXPECT_EQ(list, Variant("b|c"));
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "b");
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "c");
    EXPECT_EQ(list, Variant(""));
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "");
}

TEST_F(ToolsTexts, DeleteFirstTakesAnyDelimiterCaseSensitively) {
    Variant list = "a--b";
    EXPECT_EQ(tools->StrList_DeleteFirst(list, "--"), "a");
    EXPECT_EQ(list, Variant("b"));
    list = "aXbxc";
    EXPECT_EQ(tools->StrList_DeleteFirst(list, "x"), "aXb");
    list = "a|";
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "a");
    EXPECT_EQ(list, Variant(""));
}

TEST_F(ToolsTexts, DeleteFirstTakesValuesThatHaveAText) {
    Variant list = 12;
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "12");
    EXPECT_EQ(list, Variant(""));
    list = Empty{};
    EXPECT_EQ(tools->StrList_DeleteFirst(list), "");
    list = ObjectRef(tools);
    expect_error_number(13, [&] { tools->StrList_DeleteFirst(list); });
    list = Null{};
    expect_error_number(94, [&] { tools->StrList_DeleteFirst(list); });
}

TEST_F(ToolsTexts, DeleteFirstWritesBackToTheCallersVariable) {
    Variant values[] = {"a|b"};
    EXPECT_EQ(tools->invoke("StrList_DeleteFirst", InvokeKind::Method,
                            {.values = values, .by_reference = 1}),
              Variant("a"));
    EXPECT_EQ(values[0], Variant("b"));
}

TEST_F(ToolsTexts, ValReadsTheLeadingNumber) {
    const std::vector<std::pair<const char*, double>> table{
        {"12,5", 12},
        {"12.5abc", 12.5},
        {"", 0},
        {"abc", 0},
        {" 1 2 3 ", 123},
        {"-3", -3},
        {"+ 4", 4},
        {"- 1 . 5", -1.5},
        {".5", 0.5},
        {"5.", 5},
        {".", 0},
        {"-", 0},
        {"1.2.3", 1.2},
        {"1E3", 1000},
        {"1d-2", 0.01},
        {"1e", 1},
        {"1e+", 1},
        {"2 e 2", 200},
        {"&HFF", 255},
        {"&hffff", -1},
        {"&HFFFF&", 65535},
        {"&H10000", 65536},
        {"&HFFFFFFFF", -1},
        {"&O17", 15},
        {"&X1", 0},
        {"&H", 0},
        {"12%", 12},
        {"1e-999", 0},
        {"1615 198th Street", 1615198},
    };
    for (const auto& [text, number] : table) {
        EXPECT_EQ(tools->vbVal(text), number) << text;
    }
    expect_error_number(6, [&] { tools->vbVal("1e999"); });
    expect_error_number(6, [&] { tools->vbVal("&H123456789"); });
}

TEST_F(ToolsTexts, StrWritesNumbersWithAPointAndRoomForTheSign) {
    const std::vector<std::pair<Variant, const char*>> table{
        {3, " 3"},
        {-3, "-3"},
        {std::int16_t{0}, " 0"},
        {1234.5, " 1234.5"},
        {0.5, " .5"},
        {-0.25, "-.25"},
        {1e20, " 1E+20"},
        {1.0 / 3, " .333333333333333"},
        {"1,5", " 1.5"},
        {Empty{}, " 0"},
        {true, "-1"},
        {make_date({2026, 11, 15}), "15.11.2026"},
    };
    for (const auto& [number, text] : table) {
        EXPECT_EQ(tools->vbStr(number), text);
    }
    expect_error_number(13, [&] { tools->vbStr("abc"); });
    expect_error_number(94, [&] { tools->vbStr(Null{}); });
}

TEST_F(ToolsTexts, StrAndValAreEachOthersReverse) {
    for (const double number : {0.0, 1.0, -1.5, 0.001, 1e-20, 123456789.25, -9.99e99}) {
        EXPECT_EQ(tools->vbVal(tools->vbStr(number)), number);
    }
}

TEST_F(ToolsTexts, LikeKnowsTheRuntimesPatterns) {
    const std::vector<std::tuple<const char*, const char*, bool>> table{
        {"Meier", "M*r", true},
        {"meier", "M*", false},
        {"Meier", "M?ier", true},
        {"Meier", "Meier?", false},
        {"a2a", "a#a", true},
        {"aBa", "a#a", false},
        {"F", "[A-Z]", true},
        {"F", "[!A-Z]", false},
        {"aM5b", "a[L-P]#[!c-e]", true},
        {"BAT123khg", "B?T*", true},
        {"CAT123khg", "B?T*", false},
        {"", "", true},
        {"", "*", true},
        {"", "?", false},
        {"a", "", false},
        {"a*b", "a[*]b", true},
        {"axb", "a[*]b", false},
        {"-", "[-a]", true},
        {"-", "[a-]", true},
        {"!", "[!]", true},
        {"a!", "a!", true},
        {"]", "]", true},
        {"ab", "a[]b", true},
        {"ü", "?", true},
        {"Büro", "B[äöü]ro", true},
        {"abcabc", "*abc", true},
        {"aab", "*a?b*", true},
        {"🏠", "?", true},
    };
    for (const auto& [text, pattern, fits] : table) {
        EXPECT_EQ(tools->vbLike(text, pattern), fits) << text << " Like " << pattern;
    }
}

TEST_F(ToolsTexts, PatternsThatAreNoneAreError93) {
    expect_error(93, "", "Ungültige Musterzeichenfolge (a[b)", [&] { tools->vbLike("ab", "a[b"); });
    expect_error_number(93, [&] { tools->vbLike("b", "[z-a]"); });
}

// Many stars once took time that doubled with each of them.
TEST_F(ToolsTexts, PatternsWithManyStarsComeToAnEnd) {
    EXPECT_FALSE(tools->vbLike(std::string(2000, 'a'), "*a*a*a*a*a*a*a*a*a*a*b"));
}

std::set<std::string> all_names(clsTools& tools, std::string_view path, std::int32_t attributes) {
    std::set<std::string> names;
    for (std::string name = tools.vbDir(path, attributes); !name.empty(); name = tools.vbDir()) {
        names.insert(name);
    }
    return names;
}

TEST_F(ToolsTexts, DirGivesTheNamesThatFitOneByOne) {
    const TemporaryFolder folder;
    folder.write("a.txt", "");
    folder.write("b.TXT", "");
    folder.write("c.doc", "");
    folder.write(".hidden.txt", "");
    folder.write("deep.txt/x", "");
    using Names = std::set<std::string>;
    EXPECT_EQ(all_names(*tools, folder.file("*.txt"), 0), (Names{"a.txt", "b.TXT"}));
    EXPECT_EQ(all_names(*tools, folder.text() + "\\*.txt", 2),
              (Names{"a.txt", "b.TXT", ".hidden.txt"}));
    EXPECT_EQ(all_names(*tools, folder.file("*.txt"), 16), (Names{"a.txt", "b.TXT", "deep.txt"}));
    EXPECT_EQ(all_names(*tools, folder.file("*"), 16),
              (Names{".", "..", "a.txt", "b.TXT", "c.doc", "deep.txt"}));
    EXPECT_EQ(all_names(*tools, folder.text() + "/", 0), (Names{"a.txt", "b.TXT", "c.doc"}));
    EXPECT_EQ(all_names(*tools, folder.file("*.*"), 0), (Names{"a.txt", "b.TXT", "c.doc"}));
}

TEST_F(ToolsTexts, DirOfAPlainPathTellsWhetherItIsThere) {
    const TemporaryFolder folder;
    folder.write("a.txt", "");
    folder.write("deep/x", "");
    EXPECT_EQ(tools->vbDir(folder.file("a.txt")), "a.txt");
    EXPECT_EQ(tools->vbDir(), "");
    EXPECT_EQ(tools->vbDir(folder.file("b.txt")), "");
    EXPECT_EQ(tools->vbDir(folder.file("deep")), "");
    EXPECT_EQ(tools->vbDir(folder.file("deep"), 16), "deep");
    EXPECT_EQ(tools->vbDir(folder.file("missing/*")), "");
}

TEST_F(ToolsTexts, EachToolsObjectGoesOnWithItsOwnSearch) {
    const TemporaryFolder folder;
    folder.write("a/1", "");
    folder.write("a/2", "");
    folder.write("b/3", "");
    EXPECT_EQ(tools->vbDir(), "");
    const std::string first = tools->vbDir(folder.file("a/*"));
    const Ref<clsTools> other = make_object<clsTools>();
    EXPECT_EQ(other->vbDir(folder.file("b/*")), "3");
    EXPECT_EQ(tools->vbDir(), first == "1" ? "2" : "1");
    EXPECT_EQ(tools->vbDir(), "");
    EXPECT_EQ(tools->vbDir(), "");
}

}  // namespace
}  // namespace cvdeveloper
