#pragma once

#include "surface/surface.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace coinlet {

// Pieces of a picture for walks that show themselves to the user, row by row or column by column, and have to
// bear that the picture is another one at the next step.

/// The first `count` pixels of row y of a picture, to be changed; fewer where the picture is narrower, and
/// none where it hasn't that row. Good until the next call of anything else of the picture.
inline std::span<Pixel> RowToChange(Surface& picture, int y, int count) {
    const int width = std::clamp(count, 0, picture.PixelWidth());
    if (y < 0 || y >= picture.PixelHeight() || width == 0) return {};
    return {picture.Write({0, y, width, y + 1}).Row(y), static_cast<std::size_t>(width)};
}

/// Column x of a picture, from top to bottom, into `column`; empty where the picture hasn't that column.
void ReadColumn(const Surface& picture, int x, std::vector<Pixel>& column);
/// Puts a column into a picture from its top row on. What lies outside the picture is left out.
void WriteColumn(Surface& picture, int x, std::span<const Pixel> column);

}  // namespace coinlet
