#pragma once

#include "surface/geometry.h"
#include "surface/image.h"

namespace coinlet {

/// What the whole screen shows around the pointer; the magnifying glass looks through it.
class ScreenGrab {
public:
    virtual ~ScreenGrab() = default;
    /// The pointer's place on the screen, in pixels.
    virtual void GetCursorPos(int* x, int* y) const = 0;
    /// The picture of a part of the screen, in its size. Where the screen can't be read, the program's own
    /// windows are seen; what lies beyond is white.
    virtual Image Grab(const PixelRect& area) const = 0;
};

}  // namespace coinlet
