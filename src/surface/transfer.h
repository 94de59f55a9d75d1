#pragma once

#include "surface/image.h"
#include "surface/surface.h"

#include <vector>

namespace coinlet {

/// A run of whole pixels along one axis: `length` of them from `start` on. A negative length runs the other
/// way, `start` included.
struct PixelRun {
    int start = 0, length = 0;
};

/// For each target position of a copy along one axis, the source position that it takes. Only what lies in
/// both pictures is in it; that is always one unbroken stretch.
struct AxisMap {
    enum class Order { Forward, Backward, Stretched };

    int first = 0;                 ///< The lowest target position; the others follow upward.
    std::vector<int> sources;      ///< Of first, first + 1, ...
    Order order = Order::Forward;  ///< Whether the sources too follow one by one, and which way.

    bool Empty() const { return sources.empty(); }
    int End() const { return first + static_cast<int>(sources.size()); }
};

/// Maps the run `from` of a source of `sourceSize` pixels onto the run `to` of a target of `targetSize`:
/// target pixel i of m takes source pixel floor((i + 1/2) n / m), in exact whole numbers. Any lengths and
/// starts are legal; the work is bounded by `targetSize`.
AxisMap MapAxis(PixelRun to, int targetSize, PixelRun from, int sourceSize);

/// The part of a picture, or the place for it, that a copy names.
struct TransferBox {
    PixelRun columns, rows;
};

/// Copies, stretched where the sizes differ, under a raster operation. Pixels that lie outside either picture
/// are left out. An unknown operation counts as SRCCOPY. The source may be the target's own image.
void Transfer(Surface& target, const TransferBox& to, const Image& source, const TransferBox& from,
              RasterOp op);

/// The same as plain copy, leaving out the source pixels that equal `leftOut`.
void TransferWithout(Surface& target, const TransferBox& to, const Image& source, const TransferBox& from,
                     Pixel leftOut);

}  // namespace coinlet
