#pragma once

#include "surface/screen_grab.h"

namespace coinlet {

/// Reads the screen where the window system lets it, and else has the program's own windows drawn.
class QtScreenGrab : public ScreenGrab {
public:
    void GetCursorPos(int* x, int* y) const override;
    Image Grab(const PixelRect& area) const override;
};

}  // namespace coinlet
