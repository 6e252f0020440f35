#include "cvdeveloper/tools/phone_list.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

class PhoneList : public testing::Test {
  protected:
    Ref<clsPhoneList> list = make_object<clsPhoneList>();
};

TEST_F(PhoneList, TextGivesTheThreeParts) {
    list->put_AsString("0201 123\t\tBüro");
    EXPECT_EQ(list->Count(), 1);
    EXPECT_EQ(list->Phone1(1), "0201 123");
    EXPECT_EQ(list->Phone2(1), "");
    EXPECT_EQ(list->PhoneComment(1), "Büro");
    EXPECT_EQ(list->AsString(), "0201 123\t\tBüro");
}

TEST_F(PhoneList, EmptyTextIsAnEmptyList) {
    list->Add("1", "2", "3");
    list->put_AsString("");
    EXPECT_EQ(list->Count(), 0);
    EXPECT_EQ(list->AsString(), "");
}

TEST_F(PhoneList, SetItemStoresUnderAnyNumber) {
    list->SetItem(1, "a", "b", "c");
    EXPECT_EQ(list->Count(), 1);
    list->SetItem(-5, "x", "y", "z");
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->Phone2(-5), "y");
    list->SetItem(1, "d", "e", "f");
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->Phone1(1), "d");
}

TEST_F(PhoneList, WritingOnePartKeepsTheOthers) {
    list->SetItem(1, "a", "b", "c");
    list->put_Phone2(1, "x");
    EXPECT_EQ(list->AsString(), "a\tx\tc");
    list->put_Phone1(1, "1");
    list->put_PhoneComment(1, "3");
    EXPECT_EQ(list->AsString(), "1\tx\t3");
    list->put_Phone1(2, "neu");
    EXPECT_EQ(list->AsString(), "1\tx\t3\r\nneu\t\t");
}

// Reading makes the entry: callers have come to rely on it.
TEST_F(PhoneList, ReadingANumberThatIsNotThereMakesAnEmptyEntry) {
    list->Add("a", "b", "c");
    Variant one;
    Variant two;
    Variant three;
    list->GetItem(4, one, two, three);
    EXPECT_EQ(one, Variant(""));
    EXPECT_EQ(two, Variant(""));
    EXPECT_EQ(three, Variant(""));
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->Phone1(5), "");
    EXPECT_EQ(list->Count(), 3);
}

TEST_F(PhoneList, RemovingKeepsTheOtherNumbers) {
    list->Add("1", "", "");
    list->Add("2", "", "");
    list->Add("3", "", "");
    EXPECT_EQ(list->Remove(2), Variant(Empty{}));
    EXPECT_EQ(list->Count(), 2);
    expect_error(457, "", "Schlüssel ist bereits zugeordnet (Index 3)",
                 [&] { list->Add("4", "", ""); });
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->AsString(), "1\t\t\r\n");
    EXPECT_EQ(list->Count(), 3);
    EXPECT_EQ(list->Phone1(3), "3");
}

TEST_F(PhoneList, RemovingANumberThatIsNotThereIsAnError) {
    list->Add("1", "", "");
    expect_error(32811, "", "Element nicht gefunden (Index 2)", [&] { list->Remove(2); });
    EXPECT_EQ(list->Count(), 1);
}

TEST_F(PhoneList, MoreEntriesThanA16BitNumberCountsAreError6) {
    std::string text;
    for (int i = 0; i < 32'768; ++i) {
        text += "x\r\n";
    }
    list->put_AsString(text);
    expect_error_number(6, [&] { return list->Count(); });
    expect_error_number(6, [&] { return list->AsString(); });
}

TEST_F(PhoneList, ItsOperationsAnswerByName) {
    Object& object = *list;
    object.call("Add", "1", "2", "3");
    Variant assignment[] = {1, "x"};
    object.invoke("Phone2", InvokeKind::Put, {.values = assignment});
    EXPECT_EQ(object.get("AsString"), Variant("1\tx\t3"));
    EXPECT_EQ(object.call("PhoneComment", 1), Variant("3"));
}

TEST_F(PhoneList, RandomCallsBehaveLikeAMapOfNumbers) {
    std::mt19937 random(2);
    std::map<int, std::string> model;
    const auto pick = [&](int first, int last) {
        return std::uniform_int_distribution<int>(first, last)(random);
    };
    for (int step = 0; step < 5'000; ++step) {
        const int key = pick(1, 12);
        const std::string word = std::to_string(pick(0, 9));
        switch (pick(0, 4)) {
            case 0: {
                const int next = static_cast<int>(model.size()) + 1;
                if (model.contains(next)) {
                    expect_error_number(457, [&] { list->Add(word, "", ""); });
                } else {
                    list->Add(word, "", "");
                    model[next] = word + "\t\t";
                }
                break;
            }
            case 1:
                if (model.erase(key) > 0) {
                    list->Remove(static_cast<std::int16_t>(key));
                } else {
                    expect_error_number(32811,
                                        [&] { list->Remove(static_cast<std::int16_t>(key)); });
                }
                break;
            case 2:
                list->SetItem(static_cast<std::int16_t>(key), word, "b", "c");
                model[key] = word + "\tb\tc";
                break;
            case 3: {
                const std::string entry = model[key];
                ASSERT_EQ(list->Phone1(static_cast<std::int16_t>(key)),
                          entry.substr(0, entry.find('\t')));
                break;
            }
            default: {
                const int count = static_cast<int>(model.size());
                std::string text;
                for (int i = 1; i <= count; ++i) {
                    text += (i == 1 ? "" : "\r\n") + model[i];
                }
                ASSERT_EQ(list->AsString(), text);
            }
        }
        ASSERT_EQ(list->Count(), static_cast<std::int16_t>(model.size()));
    }
}

}  // namespace
}  // namespace cvdeveloper
