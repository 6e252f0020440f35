#include "platform/clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

namespace cvdeveloper {
namespace {

void expect_moment(Date date, CalendarDate day, TimeOfDay time) {
    EXPECT_EQ(calendar_date(date).year, day.year);
    EXPECT_EQ(calendar_date(date).month, day.month);
    EXPECT_EQ(calendar_date(date).day, day.day);
    EXPECT_EQ(time_of_day(date).hour, time.hour);
    EXPECT_EQ(time_of_day(date).minute, time.minute);
    EXPECT_EQ(time_of_day(date).second, time.second);
}

TEST(Clock, DayZeroIsThe30thOfDecember1899) {
    expect_moment(Date{0}, {1899, 12, 30}, {});
    EXPECT_EQ(make_date({1899, 12, 30}).days, 0);
    EXPECT_EQ(make_date({2026, 11, 15}).days, 46341);
    EXPECT_EQ(make_date({2026, 11, 15}, {12, 0, 0}).days, 46341.5);
}

TEST(Clock, BeforeDayZeroTheFractionStillRunsForwards) {
    expect_moment(Date{-1.25}, {1899, 12, 29}, {6, 0, 0});
    EXPECT_EQ(make_date({1899, 12, 29}, {6, 0, 0}).days, -1.25);
    expect_moment(Date{-0.5}, {1899, 12, 30}, {12, 0, 0});
}

TEST(Clock, TimesAreRoundedToTheSecondAndMayReachTheNextDay) {
    expect_moment(Date{46341.0 + 0.6 / 86400}, {2026, 11, 15}, {0, 0, 1});
    expect_moment(Date{46341.0 + 86399.6 / 86400}, {2026, 11, 16}, {});
    expect_moment(Date{-1.0 - 86399.6 / 86400}, {1899, 12, 30}, {});
}

TEST(Clock, EverySecondOfADaySurvivesTheWayThroughADate) {
    for (int second = 0; second < 86400; ++second) {
        const TimeOfDay time{second / 3600, second / 60 % 60, second % 60};
        const TimeOfDay back = time_of_day(make_date({2026, 11, 15}, time));
        ASSERT_EQ(back.hour * 3600 + back.minute * 60 + back.second, second);
    }
}

TEST(Clock, EveryDaySurvivesTheWayThroughACalendarDate) {
    for (int day = -657434; day <= 2958465; day += 7) {
        ASSERT_EQ(make_date(calendar_date(Date{static_cast<double>(day)})).days, day);
    }
}

TEST(Clock, DatesNobodyCanWriteStayAtTheEdgesOfTheCalendar) {
    EXPECT_EQ(calendar_date(Date{1e300}).year, 9999);
    EXPECT_EQ(calendar_date(Date{-1e300}).year, 100);
    EXPECT_EQ(calendar_date(Date{std::nan("")}).year, 1899);
}

TEST(Clock, WeekdaysCountFromSunday) {
    EXPECT_EQ(weekday(make_date({2026, 11, 15})), 1);
    EXPECT_EQ(weekday(make_date({2026, 11, 14}, {23, 0, 0})), 7);
    EXPECT_EQ(weekday(Date{0}), 7);
    EXPECT_EQ(weekday(Date{-1.75}), 6);
}

TEST(Clock, NowIsTheLocalTimeToTheSecond) {
    const std::time_t before = std::time(nullptr);
    const Date date = now();
    const std::tm local = *std::localtime(&before);
    const Date expected = make_date({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
                                    {local.tm_hour, local.tm_min, local.tm_sec});
    EXPECT_LT(std::abs(date.days - expected.days) * 86400, 5);
    EXPECT_NEAR(date.days * 86400, std::round(date.days * 86400), 1e-4);
}

}  // namespace
}  // namespace cvdeveloper
