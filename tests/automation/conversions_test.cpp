#include "cvdeveloper/automation/conversions.h"

#include <gtest/gtest.h>

#include "cvdeveloper/automation/object.h"
#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

TEST(Conversions, TextsOfValuesAreRegional) {
    EXPECT_EQ(to_text(Variant()), "");
    EXPECT_EQ(to_text(Variant(true)), "Wahr");
    EXPECT_EQ(to_text(Variant(false)), "Falsch");
    EXPECT_EQ(to_text(Variant(std::int16_t{-3})), "-3");
    EXPECT_EQ(to_text(Variant(1234.5)), "1234,5");
    EXPECT_EQ(to_text(Variant(Date{46341.4761})), "15.11.2026 11:25:35");
}

TEST(Conversions, NullIsErrorNinetyFour) {
    const Variant null = Null{};
    expect_error_number(94, [&] { static_cast<void>(to_text(null)); });
    expect_error_number(94, [&] { static_cast<void>(to_int32(null)); });
    expect_error_number(94, [&] { static_cast<void>(to_date(null)); });
    expect_error_number(94, [&] { static_cast<void>(to_boolean(null)); });
    EXPECT_EQ(joined_text(Null{}), "");
}

TEST(Conversions, BytesAndObjectsHaveNoText) {
    expect_error_number(13, [] { static_cast<void>(to_text(Variant(Bytes(2)))); });
    expect_error_number(13, [] { static_cast<void>(to_text(Variant(ObjectRef()))); });
}

// Gives another object, itself if need be, as its default member.
class Giving final : public Object {
  public:
    explicit Giving(Variant value = {}) : value_(std::move(value)) {}
    Variant invoke(std::string_view, InvokeKind, Arguments) override { return {}; }
    Variant default_value() override {
        return value_.is<Empty>() ? Variant(ObjectRef(this)) : value_;
    }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "Giving"; }

  private:
    Variant value_;
};

TEST(Conversions, ObjectsStandForTheirDefaultMembersToTheEnd) {
    const Variant outer = ObjectRef(make_object<Giving>(ObjectRef(make_object<Giving>("12"))));
    EXPECT_EQ(to_text(outer), "12");
    EXPECT_EQ(to_int32(outer), 12);
    EXPECT_EQ(plain_value(outer), Variant("12"));
    EXPECT_EQ(plain_value(5), Variant(5));
}

TEST(Conversions, AnObjectThatGivesItselfIsError13) {
    const Variant endless = ObjectRef(make_object<Giving>());
    expect_error_number(13, [&] { static_cast<void>(to_text(endless)); });
    expect_error_number(13, [&] { static_cast<void>(to_double(endless)); });
    expect_error_number(13, [&] { static_cast<void>(to_boolean(endless)); });
    expect_error_number(13, [&] { static_cast<void>(to_date(endless)); });
}

TEST(Conversions, IntegersRoundMidpointsToTheEvenNeighbour) {
    EXPECT_EQ(to_int32(Variant(2.5)), 2);
    EXPECT_EQ(to_int32(Variant(3.5)), 4);
    EXPECT_EQ(to_int32(Variant(-2.5)), -2);
    EXPECT_EQ(to_int16(Variant("1,6")), 2);
    EXPECT_EQ(to_int32(Variant(true)), -1);
}

TEST(Conversions, NumbersOutOfRangeAreErrorSix) {
    EXPECT_EQ(to_int16(Variant(32767.4)), 32767);
    expect_error_number(6, [] { static_cast<void>(to_int16(Variant(32767.5))); });
    expect_error_number(6, [] { static_cast<void>(to_int32(Variant(2147483648.0))); });
    expect_error_number(6, [] { static_cast<void>(to_date(Variant(3e6))); });
}

TEST(Conversions, TruthValuesComeFromTextsAndNumbers) {
    EXPECT_TRUE(to_boolean(Variant("wahr")));
    EXPECT_TRUE(to_boolean(Variant("True")));
    EXPECT_FALSE(to_boolean(Variant("Falsch")));
    EXPECT_TRUE(to_boolean(Variant(0.1)));
    EXPECT_TRUE(to_boolean(Variant("2")));
    expect_error_number(13, [] { static_cast<void>(to_boolean(Variant("ja"))); });
}

TEST(Conversions, DatesComeFromTextsAndNumbers) {
    EXPECT_EQ(to_date(Variant("15.11.2026")), Date{46341});
    EXPECT_EQ(to_date(Variant(std::int32_t{46341})), Date{46341});
    EXPECT_EQ(to_date(Variant()), Date{0});
    expect_error_number(13, [] { static_cast<void>(to_date(Variant("kein Datum"))); });
    EXPECT_EQ(to_date(Variant("46341")), Date{46341});
    expect_error_number(13, [] { static_cast<void>(to_date(Variant("31.02.2026"))); });
}

TEST(Conversions, NullAndEmptyAreNoObject) {
    EXPECT_FALSE(to_object(Null{}));
    EXPECT_FALSE(to_object(Variant()));
    expect_error_number(13, [] { static_cast<void>(to_object(Variant("x"))); });
}

}  // namespace
}  // namespace cvdeveloper
