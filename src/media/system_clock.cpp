#include "media/system_clock.h"

#include <time.h>

namespace coinlet {

DateTime SystemClock::Now() const {
    const ::time_t now = ::time(nullptr);
    ::tm local{};
    if (::localtime_r(&now, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace coinlet
