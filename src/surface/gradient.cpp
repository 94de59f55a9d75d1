// Two-colour gradients.

#include "surface/device.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace coinlet {
namespace {

// The colours along a gradient of `count` steps, for the steps first..end alone.
std::vector<Pixel> Steps(const TRIVERTEX& from, const TRIVERTEX& to, std::int64_t count, std::int64_t first,
                         std::int64_t end) {
    std::vector<Pixel> pixels;
    for (std::int64_t i = first; i < end; ++i) {
        const auto channel = [&](std::uint16_t start, std::uint16_t finish) {
            return static_cast<int>((start * (count - i) + finish * i) / count >> 8);
        };
        pixels.push_back(ToPixel(
            RGB(channel(from.Red, to.Red), channel(from.Green, to.Green), channel(from.Blue, to.Blue))));
    }
    return pixels;
}

void FillHorizontally(Surface& target, const PixelRect& box, const PixelRect& shown, const TRIVERTEX& left,
                      const TRIVERTEX& right) {
    const std::int64_t count = std::int64_t{box.right} - box.left,
                       first = std::int64_t{shown.left} - box.left;
    const auto columns = Steps(left, right, count, first, first + shown.Width());
    Bitmap& pixels = target.Write(shown);
    for (int y = shown.top; y < shown.bottom; ++y)
        std::copy(columns.begin(), columns.end(), pixels.Row(y) + shown.left);
}

void FillVertically(Surface& target, const PixelRect& box, const PixelRect& shown, const TRIVERTEX& top,
                    const TRIVERTEX& bottom) {
    const std::int64_t count = std::int64_t{box.bottom} - box.top, first = std::int64_t{shown.top} - box.top;
    const auto rows = Steps(top, bottom, count, first, first + shown.Height());
    Bitmap& pixels = target.Write(shown);
    int y = shown.top;
    for (const Pixel colour : rows)
        std::fill_n(pixels.Row(y++) + shown.left, shown.Width(), colour);
}

}  // namespace

bool GradientFill(DeviceContext hDC, std::span<const TRIVERTEX> vertices, std::span<const GRADIENT_RECT> mesh,
                  int mode) {
    if (mode != GRADIENT_FILL_RECT_H && mode != GRADIENT_FILL_RECT_V) return false;
    for (const GRADIENT_RECT& rectangle : mesh) {
        if (std::max(rectangle.UpperLeft, rectangle.LowerRight) >= vertices.size()) return false;
    }

    Surface& target = hDC.Target();
    for (const GRADIENT_RECT& rectangle : mesh) {
        const TRIVERTEX& a = vertices[rectangle.UpperLeft];
        const TRIVERTEX& b = vertices[rectangle.LowerRight];
        const PixelRect box = {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                               std::max(a.y, b.y)};
        const PixelRect shown = Intersection(box, {0, 0, target.PixelWidth(), target.PixelHeight()});
        if (shown.Empty()) continue;
        if (mode == GRADIENT_FILL_RECT_H) {
            FillHorizontally(target, box, shown, a.x < b.x ? a : b, a.x < b.x ? b : a);
        } else {
            FillVertically(target, box, shown, a.y < b.y ? a : b, a.y < b.y ? b : a);
        }
    }
    return true;
}

}  // namespace coinlet
