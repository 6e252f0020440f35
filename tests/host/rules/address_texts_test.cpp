#include "host/rules/address_texts.h"

#include <gtest/gtest.h>

namespace cvdeveloper::standalone::testing {
namespace {

struct NameCase {
    const char* text;
    const char* whole;
    const char* family;
};

TEST(AddressName, EndsWithTheFamilyNameWhereverItBegins) {
    constexpr NameCase cases[] = {
        {"Dr. Hans #Meier", "Dr. Hans Meier", "Meier"},
        {" #Meier", "Meier", "Meier"},
        {"Anna #von der Heide", "Anna von der Heide", "von der Heide"},
        {"Anna von der Heide", "Anna von der Heide", "Heide"},
        {"Hans#Meier", "Hans Meier", "Meier"},
        {"Hans  # Meier ", "Hans Meier", "Meier"},
        {"Hans #", "Hans", ""},
        {"Meier", "Meier", "Meier"},
        {"  Jörg Müßig ", "Jörg Müßig", "Müßig"},
        {"#", "", ""},
        {"", "", ""},
    };
    for (const NameCase& expected : cases) {
        const AddressName name = read_name(expected.text);
        EXPECT_EQ(name.whole, expected.whole) << expected.text;
        EXPECT_EQ(name.family, expected.family) << expected.text;
    }
}

TEST(PhoneNumbers, AreBothNumbersOfEachEntryWithoutTheComments) {
    using Numbers = std::vector<std::string>;
    EXPECT_EQ(numbers_in("0201 1\t0171 2\tBüro\r\n0201 3\t\tprivat"),
              (Numbers{"0201 1", "0171 2", "0201 3"}));
    EXPECT_EQ(numbers_in("\t0171 2\r\n\r\n 0201 4 "), (Numbers{"0171 2", "0201 4"}));
    EXPECT_EQ(numbers_in("1\t2\t3\t4"), (Numbers{"1", "2"}));
    EXPECT_EQ(numbers_in(""), Numbers{});
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
