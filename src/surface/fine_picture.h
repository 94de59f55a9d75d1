#pragma once

#include "surface/surface.h"

#include <optional>

namespace coinlet {

/// Shows the part `from` of a picture in the pixels `to` of a surface, whatever their number is: each target
/// pixel takes the mean of what it covers of the source, by area. Source pixels of the `mask` colour, and
/// what `from` has outside the picture, cover nothing: there the target stays, or shows through in part. So
/// the edges of a picture that is several times larger become smooth, and one of the same size is copied as
/// it is. Does nothing if either rectangle is empty or has a side above maximumSide; what `to` has outside
/// the surface is passed over.
void PaintFinely(Surface& target, const PixelRect& to, const Image& source, const PixelRect& from,
                 std::optional<Colour> mask);

}  // namespace coinlet
