#pragma once

#include "controls/control.h"
#include "controls/platform.h"

namespace coinlet {

/// A piece of work that takes its time: the hourglass shows on the whole screen until it ends, however that
/// comes about. The pointer is then the tools' one again.
class Hourglass {
public:
    explicit Hourglass(Platform& platform) : platform_(platform) {
        platform_.Screen.MousePointer = hourglassPointer;
    }
    ~Hourglass() { platform_.Screen.MousePointer = toolPointer; }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    Platform& platform_;
};

}  // namespace coinlet
