#pragma once

#include "surface/screen_grab.h"

namespace coinlet {
class Control;
class Platform;
}  // namespace coinlet

namespace coinlet::player {

/// Where the pointer is: on a place of a control, or away from all of them. Windows have no places here, so
/// a dialog in front doesn't cover what lies behind it.
class PointerPlace {
public:
    explicit PointerPlace(const Platform& platform) : platform_(platform) {}

    /// `x` and `y` in the units of the control's pointer events.
    void PutOn(const Control& control, double x, double y);
    void PutInMiddleOf(const Control& control);
    void PutAway() { control_ = nullptr; }

    /// True if the pointer lies in the control and no control that lies in it or in front of it covers it
    /// there.
    bool IsOver(const Control& control) const;

    /// The control that the pointer was put on; nullptr when away, and when that control's form has gone.
    const Control* PlacedOn() const;
    /// The place in pixels from that control's top left corner; (0, 0) when away.
    int PixelX() const;
    int PixelY() const;

private:
    const Platform& platform_;
    const Control* control_ = nullptr;  ///< May have ended since.
    double x_ = 0, y_ = 0;              ///< Pixels from the control's top left corner.
};

/// A screen that shows nothing but the picture that the pointer is on, in its top left corner; the rest is
/// white.
class PictureGrab : public ScreenGrab {
public:
    explicit PictureGrab(const PointerPlace& pointer) : pointer_(pointer) {}

    void GetCursorPos(int* x, int* y) const override;
    Image Grab(const PixelRect& area) const override;

private:
    const PointerPlace& pointer_;
};

}  // namespace coinlet::player
