#include "media/system_clock.h"

#include <ctime>

namespace coinlet {

DateTime SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&now, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace coinlet
