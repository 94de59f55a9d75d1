#pragma once

#include "surface/geometry.h"
#include "surface/image.h"

namespace coinlet {

/// Repaints with `mark` the 4-connected region of pixels equal to `colour` around (x, y), which must be one
/// of them; `mark` must differ from `colour`. Returns a rectangle around what was repainted.
PixelRect FillRegion(Bitmap& pixels, int x, int y, Pixel colour, Pixel mark);

/// Repaints with `fill` the 4-connected region around (x, y) that pixels of `border` (or the edge of the
/// bitmap) enclose, whatever colours it has; (x, y) must be inside. `fill` may be a colour of the region or
/// the border's. Returns a rectangle around what was repainted.
PixelRect FillToBorder(Bitmap& pixels, int x, int y, Pixel border, Pixel fill);

}  // namespace coinlet
