#include "player/virtual_clock.h"

#include <algorithm>

namespace coinlet::player {

namespace {

using namespace std::chrono;

constexpr sys_seconds start = sys_days{year{2026} / January / 2} + hours{15} + minutes{4} + seconds{5};
/// Longer waits would leave the calendar.
constexpr duration<double> longestWait = years{1000};

}  // namespace

DateTime VirtualClock::Now() const {
    const sys_seconds now = start + floor<seconds>(passed_);
    const sys_days midnight = floor<days>(now);
    const year_month_day date{midnight};
    const hh_mm_ss time{now - midnight};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

void VirtualClock::Advance(double seconds) {
    if (seconds > 0) passed_ = std::min(passed_ + duration<double>(seconds), longestWait);
}

}  // namespace coinlet::player
