// How the clock of the main window tells and writes a moment.
#include "base/clock.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

TEST(Clock, TellsMomentsInTheZoneOfTheDesktop) {
    ::setenv("TZ", "XXX-3", 1);  // three hours ahead
    ::tzset();
    // 2000-02-29 22:30:15 of the world is 11,016 days and so much after the beginning of 1970.
    constexpr std::time_t leapDay = ((11016L * 24 + 22) * 60 + 30) * 60 + 15;
    EXPECT_EQ(ToLocalTime(leapDay), (DateTime{2000, 3, 1, 1, 30, 15}));
    EXPECT_EQ(ToLocalTime(std::numeric_limits<std::time_t>::max()), (DateTime{0, 1, 1, 0, 0, 0}));
    ::unsetenv("TZ");
    ::tzset();
}

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

TEST(Clock, WritesMomentsThatCanBeNamesOfFiles) {
    EXPECT_EQ(FormatForFileName({2026, 11, 2, 15, 4, 59}), "2026-11-02 15.04");
    // A file may claim to be of any time.
    EXPECT_EQ(FormatForFileName(ToLocalTime(std::numeric_limits<std::time_t>::max())), "0000-01-01 00.00");
}

}  // namespace
}  // namespace coinlet
