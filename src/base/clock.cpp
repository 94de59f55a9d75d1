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

DateTime ToLocalTime(std::time_t moment) {
    std::tm local{};
    if (::localtime_r(&moment, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::string FormatDate(const DateTime& moment) {
    return Digits(moment.day, 2) + "-" + Digits(moment.month, 2) + "-" + Digits(moment.year, 4);
}

std::string FormatTime(const DateTime& moment) {
    return Time(moment, 1);
}

std::string FormatTimeWithLeadingZero(const DateTime& moment) {
    return Time(moment, 2);
}

std::string FormatForFileName(const DateTime& moment) {
    return Digits(moment.year, 4) + "-" + Digits(moment.month, 2) + "-" + Digits(moment.day, 2) + " " +
           Digits(moment.hour, 2) + "." + Digits(moment.minute, 2);
}

}  // namespace coinlet
