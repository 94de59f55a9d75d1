#pragma once

#include "base/clock.h"

namespace coinlet {

/// The system's clock, in the time zone of the desktop.
class SystemClock final : public Clock {
public:
    DateTime Now() const override;
};

}  // namespace coinlet
