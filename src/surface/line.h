#pragma once

#include "surface/geometry.h"
#include "surface/image.h"
#include "surface/ink.h"

#include <cstdint>
#include <optional>

namespace coinlet {

/// A pixel, by column and row. The drawing functions here take coordinates and pen widths of up to
/// `lineReach`, and clip to the bitmap.
struct PixelPoint {
    int x = 0, y = 0;
    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

/// Far beyond every surface, but near enough for exact arithmetic in 64 bits.
constexpr int lineReach = 1 << 22;

/// A line between two points of the plane, in pixels and not yet rounded.
struct PlaneLine {
    double x1, y1, x2, y2;
};
/// The pixels where a line starts and ends. What of it lies beyond `lineReach` is cut off, so that the rest
/// keeps its direction. Nothing if no part of the line is near, or if a coordinate is NaN.
struct PixelLine {
    PixelPoint from, to;
};
std::optional<PixelLine> WithinReach(const PlaneLine& line);

/// Dots are drawn 3 on, 3 off.
constexpr std::int64_t dotLength = 3;

/// A line of one pixel's width, without its last point; two equal points leave nothing. It is the line of
/// pixels nearest to the ideal one, and the same from whichever end it is drawn: where two pixels are equally
/// near, the upper or left one is taken. Clipping leaves out pixels, but moves none.
/// With `dotPhase` it is dotted; that is the number of pixels since the dots began.
void DrawThinLine(Bitmap& bitmap, PixelPoint from, PixelPoint to, const Ink& ink,
                  std::optional<std::int64_t> dotPhase = {});

/// The outline of a box in dots, which are counted from `first` along the row to the other corner, down or up
/// the column, and back. Both corners are included.
void DrawDottedBox(Bitmap& bitmap, PixelPoint first, PixelPoint opposite, const Ink& ink);

/// A line of `penWidth` pixels, 2 or more, with round ends: all pixels whose centre is within half the width
/// of the line. Pens of even width have their centre at the upper left corner of the pixel, those of odd
/// width in its middle. Two equal points give a round dot.
void DrawWideLine(Bitmap& bitmap, PixelPoint from, PixelPoint to, int penWidth, const Ink& ink);

/// What a pen of that width can reach around the points from one corner to the other, in any order.
PixelRect PenBounds(PixelPoint from, PixelPoint to, int penWidth);

}  // namespace coinlet
