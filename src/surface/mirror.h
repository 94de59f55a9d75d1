#pragma once

#include "surface/surface.h"

namespace coinlet {

/// Mirrors a whole surface in place, left to right. Twice gives back the picture.
void FlipHorizontal(Surface& target);
/// Mirrors a whole surface in place, top to bottom.
void FlipVertical(Surface& target);

/// Copies column x, mirrored, over column PixelWidth() - 1 - x. A column outside the left half does nothing.
void MirrorColumnToRight(Surface& target, int x);
/// Copies row y, mirrored, over row PixelHeight() - 1 - y. A row outside the upper half does nothing.
void MirrorRowToBottom(Surface& target, int y);

}  // namespace coinlet
