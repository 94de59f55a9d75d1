// How the clock of the main window writes a moment.
#include "base/clock.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(Clock, WritesDatesWithTwoDigits) {
    EXPECT_EQ(FormatDate({2011, 3, 7, 0, 0, 0}), "07-03-2011");
    EXPECT_EQ(FormatDate({1999, 12, 31, 0, 0, 0}), "31-12-1999");
    EXPECT_EQ(FormatDate({33, 1, 1, 0, 0, 0}), "01-01-0033");
}

TEST(Clock, WritesTheHourWithoutALeadingZero) {
    EXPECT_EQ(FormatTime({2011, 3, 7, 9, 5, 3}), "9:05:03");
    EXPECT_EQ(FormatTime({2011, 3, 7, 0, 0, 0}), "0:00:00");
    EXPECT_EQ(FormatTime({2011, 3, 7, 23, 59, 59}), "23:59:59");
}

TEST(Clock, WritesTheHourWithALeadingZeroWhereColumnsStand) {
    EXPECT_EQ(FormatTimeWithLeadingZero({2011, 3, 7, 9, 5, 3}), "09:05:03");
    EXPECT_EQ(FormatTimeWithLeadingZero({2011, 3, 7, 13, 0, 30}), "13:00:30");
}

}  // namespace
}  // namespace coinlet
