#include "surface/rotation.h"

#include "base/angles.h"
#include "base/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace coinlet {

namespace {

/// RoundHalfEven for numbers far below 2^51, as an addition that compilers turn into wide code: so far from 0
/// doubles are whole numbers, and sums are rounded to them.
double RoundSmall(double value) {
    constexpr double wholeFromHere = 0x1.8p52;
    return (value + wholeFromHere) - wholeFromHere;
}

}  // namespace

void TurnColumnIntoRow(Surface& target, int row, const Surface& source, int x) {
    const Bitmap& from = source.Pixels();
    const int count = std::min(from.Height(), target.PixelWidth());
    if (x < 0 || x >= from.Width() || row < 0 || row >= target.PixelHeight() || count == 0) return;
    Pixel* to = target.Write({0, row, count, row + 1}).Row(row);
    for (int y = 0; y < count; ++y)
        to[y] = from.Row(y)[x];
}

Rotation::Rotation(Surface& target, const Surface& source, float degrees, bool clockwise)
    : target_(target), source_(source) {
    constexpr float fullTurn = 360, quarterTurn = 90, threeQuarters = 270;
    const float turn = clockwise ? fullTurn - degrees : degrees;
    if (turn == quarterTurn || turn == threeQuarters)
        target.Resize(target.PixelHeight(), target.PixelWidth());
    const auto angle = static_cast<float>(static_cast<double>(turn) * pi / 180);
    cosine_ = std::cos(static_cast<double>(angle));
    sine_ = std::sin(static_cast<double>(angle));

    target.DrawMode = copyPen;
    const auto centre = [](const Surface& surface) {
        return Offset{RoundHalfEven(surface.PixelWidth() / 2.0), RoundHalfEven(surface.PixelHeight() / 2.0)};
    };
    sourceCentre_ = centre(source);
    targetCentre_ = centre(target);
    halfSize_ = std::max(targetCentre_.x, targetCentre_.y);
    offsetsX_.resize(static_cast<std::size_t>(halfSize_) + 1);
    offsetsY_.resize(offsetsX_.size());
}

/// r cos(a + turn) and r sin(a + turn), where cos a is x / d and sin a is y / d for the distance d that r is
/// rounded from: so no angle needs to be found.
void Rotation::FindOffsets(int x) {
    for (int y = 0; y <= halfSize_; ++y) {
        const double distance = std::sqrt(static_cast<double>(x) * x + static_cast<double>(y) * y);
        const double scale = RoundSmall(distance) / std::max(distance, 1.0);
        const auto i = static_cast<std::size_t>(y);
        offsetsX_[i] = static_cast<int>(RoundSmall(scale * (x * cosine_ - y * sine_)));
        offsetsY_[i] = static_cast<int>(RoundSmall(scale * (x * sine_ + y * cosine_)));
    }
}

int Rotation::CountOfInner(int x) const {
    const auto reach = [](const Surface& surface, Offset centre) {
        return std::min(
            {centre.x, centre.y, surface.PixelWidth() - 1 - centre.x, surface.PixelHeight() - 1 - centre.y});
    };
    const int inTarget = reach(target_, targetCentre_), inSource = reach(source_, sourceCentre_);
    if (x > inTarget || x > inSource) return 0;
    // No offset is longer than the whole number that its distance is rounded to.
    const double across = std::sqrt(static_cast<double>(inSource) * inSource - static_cast<double>(x) * x);
    return std::min({inTarget, Truncate(across), halfSize_}) + 1;
}

void Rotation::Step(int x) {
    FindOffsets(x);
    Bitmap& to = target_.WriteAll();
    const Bitmap& from = source_.Pixels();
    const int inner = CountOfInner(x);
    if (inner > 0) {
        const std::ptrdiff_t toRow = to.Width(), fromRow = from.Width();
        Pixel* const toCentre = to.Row(targetCentre_.y) + targetCentre_.x;
        const Pixel* const fromCentre = from.Row(sourceCentre_.y) + sourceCentre_.x;
        for (int y = 0; y < inner; ++y) {
            const std::ptrdiff_t dx = offsetsX_[static_cast<std::size_t>(y)];
            const std::ptrdiff_t dy = offsetsY_[static_cast<std::size_t>(y)];
            toCentre[y * toRow + x] = fromCentre[dy * fromRow + dx];
            toCentre[-y * toRow - x] = fromCentre[-dy * fromRow - dx];
            toCentre[-x * toRow + y] = fromCentre[-dx * fromRow + dy];
            toCentre[x * toRow - y] = fromCentre[dx * fromRow - dy];
        }
    }
    const auto take = [&](Offset target, Offset source) {
        const int tx = targetCentre_.x + target.x, ty = targetCentre_.y + target.y;
        const int sx = sourceCentre_.x + source.x, sy = sourceCentre_.y + source.y;
        if (to.Contains(tx, ty) && from.Contains(sx, sy)) to.Row(ty)[tx] = from.Row(sy)[sx];
    };
    for (int y = inner; y <= halfSize_; ++y) {
        const Offset at{offsetsX_[static_cast<std::size_t>(y)], offsetsY_[static_cast<std::size_t>(y)]};
        take({x, y}, at);
        take({-x, -y}, {-at.x, -at.y});
        take({y, -x}, {at.y, -at.x});
        take({-y, x}, {-at.y, at.x});
    }
}

}  // namespace coinlet
