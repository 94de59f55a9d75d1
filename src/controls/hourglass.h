#pragma once

#include "controls/control.h"
#include "controls/platform.h"

namespace coinlet {

/// A piece of work that takes its time: the hourglass shows on the whole screen, at once, until it ends,
/// however that comes about. Then comes the pointer `after`, by default the tools' one.
class Hourglass {
public:
    explicit Hourglass(Platform& platform, int after = toolPointer) : platform_(platform), after_(after) {
        platform_.Screen.MousePointer = hourglassPointer;
        platform_.ShowPointer();
    }
    ~Hourglass() { platform_.Screen.MousePointer = after_; }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    Platform& platform_;
    int after_;
};

}  // namespace coinlet
