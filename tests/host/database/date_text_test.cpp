#include "host/database/date_text.h"

#include <gtest/gtest.h>

namespace cvdeveloper::standalone {
namespace {

TEST(DateText, IsWrittenAsConditionsCompareIt) {
    EXPECT_EQ(date_text(Date{0}), "1899-12-30 00:00:00");
    EXPECT_EQ(date_text(Date{0.5}), "1899-12-30 12:00:00");
    EXPECT_EQ(date_text(Date{46082.604166666664}), "2026-03-01 14:30:00");
    EXPECT_EQ(date_text(Date{46082 + 0.25 / 86400}), "2026-03-01 00:00:00.250");
    EXPECT_EQ(date_text(Date{-1.25}), "1899-12-29 06:00:00");
    EXPECT_EQ(date_text(Date{46081.9999999999}), "2026-03-01 00:00:00");
    EXPECT_EQ(date_text(Date{-800000}), std::nullopt);
    EXPECT_EQ(date_text(Date{3000000}), std::nullopt);
}

TEST(DateText, ReadsBackToTheSameMoment) {
    for (const double days : {0.0, 0.5, -1.25, 46082.0, 46082.75, 2.0, -100000.5}) {
        EXPECT_EQ(parse_date_text(*date_text(Date{days})), Date{days}) << days;
    }
    EXPECT_EQ(parse_date_text("2026-03-01"), Date{46082});
    EXPECT_EQ(parse_date_text("2026-03-01T12:00"), Date{46082.5});
}

TEST(DateText, IsNothingForOtherTexts) {
    for (const char* text :
         {"", "morgen", "2026-13-01", "2026-02-30", "01.03.2026", "2026-03-01 25:00:00",
          "2026-03-01x", "2026-03-01 12:0", "2026-03-01 12:00:00x"}) {
        EXPECT_EQ(parse_date_text(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone
