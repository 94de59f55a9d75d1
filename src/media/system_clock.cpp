#include "media/system_clock.h"

#include <ctime>

namespace coinlet {

DateTime SystemClock::Now() const {
    return ToLocalTime(std::time(nullptr));
}

}  // namespace coinlet
