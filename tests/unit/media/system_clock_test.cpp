// The system's clock in the zone of the desktop.
#include "media/system_clock.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

/// Days since the start of 1970, counted year by year.
long DaysSinceEpoch(const DateTime& moment) {
    const auto isLeap = [](int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; };
    long days = moment.day - 1;
    for (int year = 1970; year < moment.year; ++year)
        days += isLeap(year) ? 366 : 365;
    for (int month = 1; month < moment.month; ++month) {
        constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        days += lengths[month - 1] + (month == 2 && isLeap(moment.year) ? 1 : 0);
    }
    return days;
}

TEST(SystemClock, TellsTheTimeOfTheZone) {
    for (const auto& [zone, hoursAhead] :
         {std::pair{"UTC0", 0}, std::pair{"XXX-3", 3}, std::pair{"YYY+5", -5}}) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        const long before = static_cast<long>(std::time(nullptr));
        const DateTime now = SystemClock().Now();
        const long after = static_cast<long>(std::time(nullptr));
        const long told =
            ((DaysSinceEpoch(now) * 24 + now.hour - hoursAhead) * 60 + now.minute) * 60 + now.second;
        EXPECT_LE(before, told) << zone;
        EXPECT_GE(after, told) << zone;
    }
    ::unsetenv("TZ");
    ::tzset();
}

}  // namespace
}  // namespace coinlet
