#include "surface/mirror.h"

#include <algorithm>
#include <vector>

namespace coinlet {

void FlipHorizontal(Surface& target) {
    const int width = target.PixelWidth(), height = target.PixelHeight();
    if (width < 2 || height == 0) return;
    Bitmap& pixels = target.WriteAll();
    // By way of a second row, a plain loop that compilers turn into wide moves; a swap in place isn't one.
    std::vector<Pixel> before(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        Pixel* row = pixels.Row(y);
        std::copy_n(row, width, before.data());
        std::reverse_copy(before.data(), before.data() + width, row);
    }
}

void FlipVertical(Surface& target) {
    const int width = target.PixelWidth(), height = target.PixelHeight();
    if (width == 0 || height < 2) return;
    Bitmap& pixels = target.WriteAll();
    for (int y = 0; y < height / 2; ++y)
        std::swap_ranges(pixels.Row(y), pixels.Row(y) + width, pixels.Row(height - 1 - y));
}

void MirrorColumnToRight(Surface& target, int x) {
    const int width = target.PixelWidth(), height = target.PixelHeight();
    if (x < 0 || x >= width / 2 || height == 0) return;
    const int opposite = width - 1 - x;
    Bitmap& pixels = target.Write({opposite, 0, opposite + 1, height});
    for (int y = 0; y < height; ++y)
        pixels.Row(y)[opposite] = pixels.Row(y)[x];
}

void MirrorRowToBottom(Surface& target, int y) {
    const int width = target.PixelWidth(), height = target.PixelHeight();
    if (y < 0 || y >= height / 2 || width == 0) return;
    const int opposite = height - 1 - y;
    Bitmap& pixels = target.Write({0, opposite, width, opposite + 1});
    std::copy_n(pixels.Row(y), width, pixels.Row(opposite));
}

}  // namespace coinlet
