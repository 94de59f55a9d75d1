#pragma once

#include "base/clock.h"

#include <chrono>

namespace coinlet::player {

/// A clock that moves only when the program waits. It starts at 2026-01-02 15:04:05.
class VirtualClock : public Clock {
public:
    DateTime Now() const override;
    /// Moves on; parts of a second add up. Times not above 0 (and NaN) don't move it.
    void Advance(double seconds);

private:
    std::chrono::duration<double> passed_{0};
};

}  // namespace coinlet::player
