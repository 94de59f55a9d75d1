#pragma once

#include "surface/arc.h"
#include "surface/geometry.h"
#include "surface/image.h"
#include "surface/ink.h"

#include <optional>

namespace coinlet {

/// A box whose corners are quarters of an ellipse: all that is round or square on a canvas, from a
/// dot to a box with rounded corners, is one of these. A pixel belongs to it if its centre does.
struct RoundedBox {
    PixelRect edges;
    double radiusX = 0, radiusY = 0;  ///< Of its corners; at most half its width and height.

    /// By how many pixels a row is shorter than the box, on either side. `row` counts from 0 at the upper or
    /// the lower edge, whichever is nearer.
    int Inset(int row) const;
};

/// The edges of ellipses may go up to this, so that a radius of a thousand million is fine.
constexpr int ellipseReach = 1 << 28;

/// The outer edge of what a pen draws along the ellipse that fills `path`, the box of the pixels that a thin
/// pen would touch as its outermost ones.
RoundedBox EllipseOutside(const PixelRect& path, int penWidth);
/// The outer edge of what a pen draws along a box whose corners are ellipses of that width and height in
/// pixels. `path` is that of a thin pen, too.
RoundedBox BoxOutside(const PixelRect& path, int cornerWidth, int cornerHeight, int penWidth);

/// Draws a ring with the outer edge `outside` and a pen's width, clipped to the bitmap; each pixel once. Its
/// rows hang together at the corners at least, however thin and flat it is, and a pen of one pixel draws no
/// more than that takes.
/// With `fill` what the ring encloses is inked too, up to its pixels and without them.
void DrawRing(Bitmap& bitmap, const RoundedBox& outside, int penWidth, const Ink& outline,
              const std::optional<Ink>& fill);

/// Those pixels of the ring that lie in the directions of `arc` from the pixel (x, y).
void DrawRingPart(Bitmap& bitmap, const RoundedBox& outside, int penWidth, const Ink& outline, int x, int y,
                  const Arc& arc);

/// The whole of a rounded box, without an outline of its own.
void FillRoundedBox(Bitmap& bitmap, const RoundedBox& box, const Ink& ink);

}  // namespace coinlet
