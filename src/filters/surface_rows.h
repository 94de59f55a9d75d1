#pragma once

#include "surface/surface.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace coinlet {

/// The first `count` pixels of row y of a picture, to be changed; fewer where the picture is narrower, and
/// none where it hasn't that row. Good until the next call of anything else of the picture.
inline std::span<Pixel> RowToChange(Surface& picture, int y, int count) {
    const int width = std::clamp(count, 0, picture.PixelWidth());
    if (y < 0 || y >= picture.PixelHeight() || width == 0) return {};
    return {picture.Write({0, y, width, y + 1}).Row(y), static_cast<std::size_t>(width)};
}

}  // namespace coinlet
