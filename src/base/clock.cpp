#include "base/clock.h"

namespace coinlet {

namespace {

std::string Digits(int number, std::size_t width) {
    std::string digits = std::to_string(number);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

std::string Time(const DateTime& moment, std::size_t hourWidth) {
    return Digits(moment.hour, hourWidth) + ":" + Digits(moment.minute, 2) + ":" + Digits(moment.second, 2);
}

}  // namespace

std::string FormatDate(const DateTime& moment) {
    return Digits(moment.day, 2) + "-" + Digits(moment.month, 2) + "-" + Digits(moment.year, 4);
}

std::string FormatTime(const DateTime& moment) {
    return Time(moment, 1);
}

std::string FormatTimeWithLeadingZero(const DateTime& moment) {
    return Time(moment, 2);
}

}  // namespace coinlet
