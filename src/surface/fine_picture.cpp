#include "surface/fine_picture.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace coinlet {
namespace {

// Along one side: a source pixel is `targetSize` units long and a target pixel `sourceSize`, so that both
// sides are as many units.
struct Span {
    std::int64_t sourceSize = 0, targetSize = 0;

    std::int64_t First(int target) const { return target * sourceSize / targetSize; }
    std::int64_t Last(int target) const { return ((target + 1) * sourceSize - 1) / targetSize; }
    std::int64_t Shared(int target, std::int64_t source) const {
        return std::min((target + 1) * sourceSize, (source + 1) * targetSize) -
               std::max(target * sourceSize, source * targetSize);
    }
};

bool HasSidesOfPictures(const PixelRect& rectangle) {
    const auto isSide = [](std::int64_t from, std::int64_t to) {
        return to > from && to - from <= maximumSide;
    };
    return isSide(rectangle.left, rectangle.right) && isSide(rectangle.top, rectangle.bottom);
}

constexpr int channels = 3;

struct Mixture {
    std::array<std::int64_t, channels> sums{};
    std::int64_t weight = 0;

    void Add(Pixel pixel, std::int64_t share) {
        for (int i = 0; i < channels; ++i)
            sums[static_cast<std::size_t>(i)] += share * (pixel >> (8 * i) & 255U);
        weight += share;
    }
    /// The mean, rounded; the weight is above 0.
    Pixel Mean() const {
        Pixel pixel = spareByte;
        for (int i = 0; i < channels; ++i)
            pixel |= static_cast<Pixel>((sums[static_cast<std::size_t>(i)] + weight / 2) / weight) << (8 * i);
        return pixel;
    }
};

}  // namespace

void PaintFinely(Surface& target, const PixelRect& to, const Image& source, const PixelRect& from,
                 std::optional<Colour> mask) {
    const PixelRect seen = Intersection(to, {0, 0, target.PixelWidth(), target.PixelHeight()});
    if (seen.Empty() || source.Empty() || !HasSidesOfPictures(to) || !HasSidesOfPictures(from)) return;
    Bitmap& pixels = target.Write(seen);
    const Span across{from.Width(), to.Width()}, down{from.Height(), to.Height()};
    const std::int64_t whole = across.sourceSize * down.sourceSize;
    // What the picture has of `from`; the rest isn't walked through. The last frame of a button's strip may
    // go on beyond it.
    const std::int64_t left = -std::int64_t{from.left}, right = left + source.Width() - 1;
    const std::int64_t top = -std::int64_t{from.top}, bottom = top + source.Height() - 1;
    for (int y = seen.top; y < seen.bottom; ++y) {
        const int row = y - to.top;
        for (int x = seen.left; x < seen.right; ++x) {
            const int column = x - to.left;
            Mixture mixture;
            const std::int64_t lastRow = std::min(down.Last(row), bottom);
            const std::int64_t lastColumn = std::min(across.Last(column), right);
            for (std::int64_t j = std::max(down.First(row), top); j <= lastRow; ++j) {
                for (std::int64_t i = std::max(across.First(column), left); i <= lastColumn; ++i) {
                    const Colour colour =
                        source.At(from.left + static_cast<int>(i), from.top + static_cast<int>(j));
                    if (colour == mask) continue;
                    mixture.Add(ToPixel(colour), across.Shared(column, i) * down.Shared(row, j));
                }
            }
            Pixel& pixel = pixels.Row(y)[x];
            mixture.Add(pixel, whole - mixture.weight);
            pixel = mixture.Mean();
        }
    }
}

}  // namespace coinlet
