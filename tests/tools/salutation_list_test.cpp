#include "cvdeveloper/tools/salutation_list.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

constexpr char two_items[] =
    "Frau\tFrau\tSehr geehrte Frau {NACHNAME}\r\nHerr\tHerrn\tSehr geehrter Herr {NACHNAME}";

class SalutationList : public testing::Test {
  protected:
    Ref<clsSalutationList> list = make_object<clsSalutationList>();
};

TEST_F(SalutationList, TextComesBackWithoutTheLastSeparator) {
    list->put_AsString(two_items);
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->AsString(), two_items);
    list->put_AsString("A\tB\tC\r\n");
    EXPECT_EQ(list->Count(), 1);
    EXPECT_EQ(list->AsString(), "A\tB\tC");
}

TEST_F(SalutationList, EmptyTextIsAnEmptyList) {
    list->put_AsString(two_items);
    list->put_AsString("");
    EXPECT_EQ(list->Count(), 0);
    EXPECT_EQ(list->AsString(), "");
}

TEST_F(SalutationList, SeparatorsInARowAreEmptyItems) {
    list->put_AsString("\r\n\r\nX");
    EXPECT_EQ(list->Count(), 3);
    Variant one;
    Variant two;
    Variant three;
    list->GetItem(3, one, two, three);
    EXPECT_EQ(one, Variant("X"));
    EXPECT_EQ(two, Variant(""));
    EXPECT_EQ(three, Variant(""));
    EXPECT_EQ(list->SalutationShort(1), "");
}

TEST_F(SalutationList, OnlyCrLfSeparatesItems) {
    list->put_AsString("a\nb\rc");
    EXPECT_EQ(list->Count(), 1);
    EXPECT_EQ(list->SalutationShort(1), "a\nb\rc");
}

TEST_F(SalutationList, WhatFollowsAThirdTabIsKeptInTheTextAndDroppedFromTheParts) {
    list->put_AsString("a\tb\tc\td");
    EXPECT_EQ(list->SalutationLetter(1), "c");
    EXPECT_EQ(list->AsString(), "a\tb\tc\td");
}

TEST_F(SalutationList, FindByShortIgnoresCaseButNoBlanks) {
    EXPECT_EQ(list->FindByShort("Frau"), -1);
    list->put_AsString(two_items);
    EXPECT_EQ(list->FindByShort("frau"), 1);
    EXPECT_EQ(list->FindByShort("HERR"), 2);
    EXPECT_EQ(list->FindByShort(" Frau"), -1);
    list->Add("Ökonomierat", "", "");
    EXPECT_EQ(list->FindByShort("öKONOMIERAT"), 3);
}

TEST_F(SalutationList, EqualItemsAreKeptAndTheFirstIsFound) {
    list->Add("Herr", "Herrn", "Sehr geehrter Herr {NACHNAME}");
    list->Add("Herr", "Herrn", "Sehr geehrter Herr {NACHNAME}");
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->FindByShort("Herr"), 1);
}

TEST_F(SalutationList, LetterTagsTakeTitleAndName) {
    const auto letter = [&](const char* text, const char* title, const char* first,
                            const char* family) {
        return list->ReplaceSalutationLetterTag(text, title, first, family);
    };
    EXPECT_EQ(letter("Sehr geehrter Herr {NACHNAME}", "Dr.", "Hans", "Meier"),
              "Sehr geehrter Herr Dr. Meier");
    EXPECT_EQ(letter("Sehr geehrter Herr {NACHNAME}", "", "Hans", "Meier"),
              "Sehr geehrter Herr Meier");
    EXPECT_EQ(letter("Sehr geehrte Frau {NACHNAME}/Sehr geehrter Herr {NACHNAME}", "", "", "Meier"),
              "Sehr geehrte Frau Meier\r\nSehr geehrter Herr Meier");
    EXPECT_EQ(letter("Hallo {VORNAME}", "", " Hans ", ""), "Hallo Hans");
    EXPECT_EQ(letter("{nachname} {NACHNAME}", "", "", "A/B"), "{nachname} A\r\nB");
    EXPECT_EQ(letter("{NACHNAME}", "", "", "\tMeier\t "), "\tMeier\t");
    // The first name goes in after the family name and may carry tags of its own.
    EXPECT_EQ(letter("{NACHNAME}", "", "Hans", "{VORNAME}"), "Hans");
}

TEST_F(SalutationList, RemoveMovesTheOthersUp) {
    list->put_AsString(two_items);
    EXPECT_EQ(list->Remove(1), Variant(Empty{}));
    EXPECT_EQ(list->Count(), 1);
    EXPECT_EQ(list->SalutationShort(1), "Herr");
}

TEST_F(SalutationList, AnIndexWithoutAnItemIsError9) {
    list->put_AsString("A\tB\tC");
    Variant part;
    for (const std::int16_t index : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{2}}) {
        expect_error_number(9, [&] { list->GetItem(index, part, part, part); });
        expect_error_number(9, [&] { return list->SalutationShort(index); });
        expect_error_number(9, [&] { return list->SalutationLong(index); });
        expect_error_number(9, [&] { return list->SalutationLetter(index); });
        expect_error_number(9, [&] { list->put_SalutationLong(index, "x"); });
        expect_error_number(9, [&] { list->SetItem(index, "a", "b", "c"); });
        expect_error_number(9, [&] { list->Remove(index); });
    }
    EXPECT_EQ(list->AsString(), "A\tB\tC");
}

TEST_F(SalutationList, AssigningToAnItemIsError424AndChangesNothing) {
    list->put_AsString("A\tB\tC");
    expect_error_number(424, [&] { list->SetItem(1, "a", "b", "c"); });
    expect_error_number(424, [&] { list->put_SalutationShort(1, "x"); });
    expect_error_number(424, [&] { list->put_SalutationLong(1, "x"); });
    expect_error_number(424, [&] { list->put_SalutationLetter(1, "x"); });
    EXPECT_EQ(list->AsString(), "A\tB\tC");
}

TEST_F(SalutationList, MoreItemsThanA16BitNumberCountsAreError6) {
    std::string text;
    for (int i = 0; i < 32'768; ++i) {
        text += "x\r\n";
    }
    list->put_AsString(text);
    expect_error_number(6, [&] { return list->Count(); });
    expect_error_number(6, [&] { return list->AsString(); });
    EXPECT_EQ(list->SalutationShort(32'767), "x");
    list->Remove(1);
    EXPECT_EQ(list->Count(), 32'767);
}

TEST_F(SalutationList, ItsOperationsAnswerByName) {
    Object& object = *list;
    object.put("AsString", two_items);
    EXPECT_EQ(object.get("count"), Variant(std::int16_t{2}));
    EXPECT_EQ(object.call("SalutationLong", 2), Variant("Herrn"));
    Variant values[] = {1, Empty{}, Empty{}, Empty{}};
    object.invoke("GetItem", InvokeKind::Method, {.values = values, .by_reference = 0b1110});
    EXPECT_EQ(values[3], Variant("Sehr geehrte Frau {NACHNAME}"));
    Variant assignment[] = {1, "x"};
    expect_error_number(
        424, [&] { object.invoke("SalutationLong", InvokeKind::Put, {.values = assignment}); });
}

TEST_F(SalutationList, RandomListsBehaveLikeAListOfTexts) {
    std::mt19937 random(1);
    std::vector<std::string> model;
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    const std::vector<std::string> words{"", "Frau", "Herr", "Büro", "a/b", " "};
    for (int step = 0; step < 5'000; ++step) {
        switch (pick(4)) {
            case 0:
            case 1: {
                const std::string& one = words[pick(words.size())];
                const std::string& two = words[pick(words.size())];
                const std::string& three = words[pick(words.size())];
                list->Add(one, two, three);
                model.push_back(one + "\t" + two + "\t" + three);
                break;
            }
            case 2:
                if (!model.empty()) {
                    const std::size_t at = pick(model.size());
                    list->Remove(static_cast<std::int16_t>(at + 1));
                    model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
                }
                break;
            default:
                list->put_AsString(list->AsString());
        }
        std::string text;
        for (const std::string& item : model) {
            text += (text.empty() ? "" : "\r\n") + item;
        }
        ASSERT_EQ(list->Count(), static_cast<std::int16_t>(model.size()));
        ASSERT_EQ(list->AsString(), text);
        if (model.size() > 60) {
            list->Clear();
            model.clear();
        }
    }
}

}  // namespace
}  // namespace cvdeveloper
