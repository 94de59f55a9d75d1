// Copies of pictures in scale units.

#include "base/numbers.h"
#include "surface/transfer.h"

#include <cmath>

namespace coinlet {
namespace {

bool HasNan(const Rectangle& box) {
    return std::isnan(box.x) || std::isnan(box.y) || std::isnan(box.width) || std::isnan(box.height);
}

// From fractions of pixels to whole ones; each value is rounded on its own.
TransferBox Rounded(const Rectangle& pixels) {
    return {{RoundHalfEven(pixels.x), RoundHalfEven(pixels.width)},
            {RoundHalfEven(pixels.y), RoundHalfEven(pixels.height)}};
}

TransferBox Whole(const Image& image) {
    return {{0, image.Width()}, {0, image.Height()}};
}

}  // namespace

void Surface::PaintPicture(const coinlet::Image& source, double x, double y, RasterOp op) {
    if (std::isnan(x) || std::isnan(y)) return;
    const Rectangle pixels = {PixelX(x), PixelY(y), static_cast<double>(source.Width()),
                              static_cast<double>(source.Height())};
    Transfer(*this, Rounded(pixels), source, Whole(source), op);
}

void Surface::PaintPicture(const coinlet::Image& source, const Rectangle& to, RasterOp op) {
    if (HasNan(to)) return;
    const Rectangle pixels = {PixelX(to.x), PixelY(to.y), PixelLengthX(to.width), PixelLengthY(to.height)};
    Transfer(*this, Rounded(pixels), source, Whole(source), op);
}

void Surface::PaintPicture(const coinlet::Image& source, const Rectangle& to, const Rectangle& from,
                           RasterOp op) {
    if (HasNan(to) || HasNan(from)) return;
    const Rectangle toPixels = {PixelX(to.x), PixelY(to.y), PixelLengthX(to.width), PixelLengthY(to.height)};
    const Rectangle fromPixels = {PixelX(from.x), PixelY(from.y), PixelLengthX(from.width),
                                  PixelLengthY(from.height)};
    Transfer(*this, Rounded(toPixels), source, Rounded(fromPixels), op);
}

}  // namespace coinlet
