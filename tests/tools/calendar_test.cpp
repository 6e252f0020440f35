#include "cvdeveloper/tools/calendar.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/tools/tools.h"
#include "platform/clock.h"
#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

constexpr char component[] = "clqexstdc10.cLegalHolidays";

// Christmas of its year, and a list of what it was asked.
class FakeHolidays final : public Object, public host::LegalHolidays {
  public:
    explicit FakeHolidays(std::vector<std::string>& asked) : asked_(asked) {}

    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        raise(RuntimeError::NoSuchMember, member);
    }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "FakeHolidays"; }
    void Eintragen(std::int32_t year) override {
        year_ = year;
        asked_.push_back("Eintragen " + std::to_string(year));
        if (year == 1999) {
            raise(RuntimeError::InvalidCall);
        }
    }
    std::int32_t Count() override {
        asked_.emplace_back("Count");
        return 3;
    }
    Date Day(std::int32_t index) override {
        asked_.push_back("Day " + std::to_string(index));
        return make_date({year_, 12, 23 + index});
    }
    std::string Description(std::int32_t index) override {
        asked_.push_back("Description " + std::to_string(index));
        return "Weihnachten";
    }

  private:
    std::vector<std::string>& asked_;
    std::int32_t year_ = 0;
};

class CalendarTest : public testing::Test {
  protected:
    ~CalendarTest() override { register_class(component, {}); }

    void install_component() {
        register_class(component, [this] { return make_object<FakeHolidays>(asked); });
    }

    std::vector<std::string> asked;
    Ref<Session> session = make_object<Session>();
    Calendar calendar{*session};
};

Date day(int year, int month, int number, int hour = 0, int minute = 0) {
    return make_date({year, month, number}, {hour, minute, 0});
}

TEST_F(CalendarTest, AHolidayIsAskedForAndNeverTold) {
    install_component();
    EXPECT_EQ(calendar.IsFeiertag(day(2026, 12, 25, 18)), "");
    EXPECT_EQ(asked, (std::vector<std::string>{"Eintragen 2026", "Count", "Day 1", "Day 2",
                                               "Description 2"}));
    EXPECT_EQ(calendar.IsFeiertag(day(2026, 6, 1)), "");
}

TEST_F(CalendarTest, EachYearHasOneComponentForTheSessionsLife) {
    install_component();
    calendar.IsFeiertag(day(2026, 1, 1));
    calendar.IsFeiertag(day(2027, 1, 1));
    asked.clear();
    calendar.IsFeiertag(day(2026, 1, 1));
    EXPECT_EQ(asked, (std::vector<std::string>{"Count", "Day 1", "Day 2", "Day 3"}));
}

// A component that fails to fill in its year is kept all the same and not asked to again.
TEST_F(CalendarTest, FailuresOfTheComponentAreSwallowed) {
    EXPECT_EQ(calendar.IsFeiertag(day(2026, 12, 25)), "");
    install_component();
    EXPECT_EQ(calendar.IsFeiertag(day(1999, 12, 25)), "");
    EXPECT_EQ(calendar.IsFeiertag(day(1999, 12, 25)), "");
    EXPECT_EQ(asked, (std::vector<std::string>{"Eintragen 1999", "Count", "Day 1", "Day 2",
                                               "Description 2"}));
}

TEST_F(CalendarTest, AnInterruptIsNoFailureOfTheComponent) {
    register_class(component, []() -> ObjectRef { throw Interrupt(); });
    EXPECT_THROW(calendar.IsFeiertag(day(2026, 1, 1)), Interrupt);
}

TEST_F(CalendarTest, WeekendsGoByTheirFlags) {
    const Date saturday = day(2026, 11, 14);
    const Date sunday = day(2026, 11, 15);
    EXPECT_FALSE(calendar.IsArbeitstag(saturday));
    EXPECT_FALSE(calendar.IsArbeitstag(sunday));
    EXPECT_TRUE(calendar.IsArbeitstag(saturday, true, false, true));
    EXPECT_TRUE(calendar.IsArbeitstag(sunday, true, true, false));
    EXPECT_FALSE(calendar.IsArbeitstag(sunday, true, false, true));
    EXPECT_TRUE(calendar.IsArbeitstag(day(2026, 11, 13)));
}

TEST_F(CalendarTest, HolidaysAreAskedForOnlyFromMondayToFriday) {
    install_component();
    EXPECT_TRUE(calendar.IsArbeitstag(day(2026, 12, 25)));
    EXPECT_FALSE(asked.empty());
    asked.clear();
    calendar.IsArbeitstag(day(2026, 12, 26));
    calendar.IsArbeitstag(day(2026, 12, 25), false);
    EXPECT_TRUE(asked.empty());
}

TEST_F(CalendarTest, WhatIsNoDateIsNotMoved) {
    const Date start = day(2011, 1, 14);
    for (const Variant& value :
         {Variant(Empty{}), Variant(Null{}), Variant("01.02.2011"), Variant(40555)}) {
        EXPECT_EQ(calendar.MoveDate(value, start, start), value);
    }
}

TEST_F(CalendarTest, DistancesAreCountedInDaysAndWalkedInWorkingDays) {
    EXPECT_EQ(calendar.MoveDate(day(2011, 1, 12), day(2011, 1, 14), day(2011, 1, 10)),
              Variant(day(2011, 1, 18)));
    EXPECT_EQ(calendar.MoveDate(day(2011, 1, 12), day(2011, 1, 14), day(2011, 1, 10), false),
              Variant(day(2011, 1, 16)));
}

TEST_F(CalendarTest, TheStartMovesOnToAWorkingDay) {
    const Date sunday = day(2011, 1, 16);
    EXPECT_EQ(calendar.MoveDate(sunday, sunday, sunday), Variant(day(2011, 1, 17)));
    EXPECT_EQ(calendar.MoveDate(sunday, sunday, sunday, false), Variant(sunday));
}

TEST_F(CalendarTest, DatesNeverMoveBackwards) {
    EXPECT_EQ(calendar.MoveDate(day(2011, 1, 3), day(2011, 1, 15), day(2011, 1, 10)),
              Variant(day(2011, 1, 17)));
}

TEST_F(CalendarTest, TheTimeOfDayComesFromTheStart) {
    EXPECT_EQ(calendar.MoveDate(day(2011, 1, 11, 10, 30), day(2011, 1, 12, 8), day(2011, 1, 10)),
              Variant(day(2011, 1, 13, 8)));
    EXPECT_EQ(calendar.MoveDate(day(2011, 1, 11), day(2011, 1, 12, 8), day(2011, 1, 10, 23)),
              Variant(day(2011, 1, 13)));
}

TEST_F(CalendarTest, MovedDatesAreThatManyWorkingDaysAway) {
    std::mt19937 random(5);
    std::uniform_int_distribution<int> offset(-20, 60);
    for (int round = 0; round < 500; ++round) {
        const Date reference = day(2026, 1, 1);
        const Date date{reference.days + offset(random)};
        const Date start{reference.days + offset(random)};
        const Date moved = calendar.MoveDate(date, start, reference).get<Date>();
        ASSERT_TRUE(calendar.IsArbeitstag(moved));
        int working_days = 0;
        for (Date at = start; at < moved; at.days += 1) {
            working_days += calendar.IsArbeitstag(at) ? 1 : 0;
        }
        ASSERT_EQ(working_days, std::max(0, static_cast<int>(date.days - reference.days)));
    }
}

TEST_F(CalendarTest, FlagsAreOnlyRead) {
    const Ref<clsTools> tools = make_object<clsTools>();
    Variant values[] = {day(2026, 11, 14), 1, 0, "Wahr"};
    EXPECT_EQ(tools->invoke("IsArbeitstag", InvokeKind::Method,
                            {.values = values, .by_reference = 0b1110}),
              Variant(true));
    EXPECT_EQ(values[1], Variant(1));
    EXPECT_EQ(values[2], Variant(0));
    EXPECT_EQ(values[3], Variant("Wahr"));
}

}  // namespace
}  // namespace cvdeveloper
