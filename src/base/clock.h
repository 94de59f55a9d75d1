#pragma once

#include <ctime>
#include <string>

namespace coinlet {

/// A moment in local time, as the user reads it from a clock.
struct DateTime {
    int year = 0, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// Tells the time. The program reads the system's clock; the scenario player has a virtual one.
class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime Now() const = 0;
};

/// A moment of the system in the time zone of the desktop; one beyond the calendar gives the first of year 0.
DateTime ToLocalTime(std::time_t moment);

/// "dd-mm-yyyy".
std::string FormatDate(const DateTime& moment);
/// "h:mm:ss", the hour without a leading zero.
std::string FormatTime(const DateTime& moment);
/// "hh:mm:ss".
std::string FormatTimeWithLeadingZero(const DateTime& moment);
/// "yyyy-mm-dd hh.mm": in the order of time where names are sorted, and without the colon that some systems
/// refuse in the name of a file.
std::string FormatForFileName(const DateTime& moment);

}  // namespace coinlet
