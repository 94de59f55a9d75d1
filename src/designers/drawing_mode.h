#pragma once

#include "controls/frame.h"

namespace coinlet {

class Surface;

/// One of the ways in which the arc designer draws: a panel of its own, and what the pointer does on the
/// picture. The form hands on what happens while the mode is the chosen one. What a mode remembers outlives
/// a visit to another one.
class DrawingMode {
public:
    DrawingMode() = default;
    DrawingMode(const DrawingMode&) = delete;
    DrawingMode& operator=(const DrawingMode&) = delete;
    virtual ~DrawingMode() = default;

    /// Shown while the mode is the chosen one.
    virtual Frame& Panel() = 0;
    /// The user has chosen the mode.
    virtual void Chosen() {}

    // The pointer on the picture, in pixels of it; a move has the button that is held down, or 0. The pen has
    // its width and is black when a press comes.
    virtual void Press(int /*button*/, float /*x*/, float /*y*/) {}
    virtual void Move(int /*button*/, float /*x*/, float /*y*/) {}
    virtual void Release() {}

    /// The user has set another width of the pen.
    virtual void PenWidthChanged(int /*width*/) {}
    /// The picture has gone back to its background, whichever mode is the chosen one: a preview that was on
    /// it needs no wiping any more.
    virtual void PictureWiped() {}
};

}  // namespace coinlet
