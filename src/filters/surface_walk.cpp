#include "filters/surface_walk.h"

namespace coinlet {

void ReadColumn(const Surface& picture, int x, std::vector<Pixel>& column) {
    const Bitmap& pixels = picture.Pixels();
    const bool inside = x >= 0 && x < pixels.Width();
    column.resize(static_cast<std::size_t>(inside ? pixels.Height() : 0));
    for (std::size_t y = 0; y < column.size(); ++y)
        column[y] = pixels.Row(static_cast<int>(y))[x];
}

void WriteColumn(Surface& picture, int x, std::span<const Pixel> column) {
    if (x < 0 || x >= picture.PixelWidth() || column.empty()) return;
    const int height = std::min(picture.PixelHeight(), static_cast<int>(column.size()));
    Bitmap& pixels = picture.Write({x, 0, x + 1, height});
    for (int y = 0; y < height; ++y)
        pixels.Row(y)[x] = column[static_cast<std::size_t>(y)];
}

}  // namespace coinlet
