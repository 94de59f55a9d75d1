#pragma once

#include "controls/control.h"
#include "surface/surface.h"

namespace coinlet {

/// Places a control of a form or frame by pixels.
inline void PlaceByPixels(Control& control, int left, int top, int width, int height) {
    control.Move(left * twipsPerPixel, top * twipsPerPixel, width * twipsPerPixel, height * twipsPerPixel);
}

}  // namespace coinlet
