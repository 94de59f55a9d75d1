#include "surface/line.h"

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

/// All points within a radius of a line, which runs downward or is level.
class Capsule {
public:
    Capsule(double x1, double y1, double x2, double y2, double radius)
        : x1_(x1), y1_(y1), x2_(x2), y2_(y2), radius_(radius) {
        const double length = std::hypot(x2 - x1, y2 - y1);
        normalX_ = length > 0 ? (y2 - y1) / length * radius : 0;
        normalY_ = length > 0 ? (x1 - x2) / length * radius : 0;
    }

    /// Where its left (side -1) or right (side 1) edge crosses a row that crosses the capsule.
    double Edge(int side, double row) const {
        if (y1_ == y2_) {
            const double end = side < 0 ? std::min(x1_, x2_) : std::max(x1_, x2_);
            return end + side * HalfChord(row - y1_);
        }
        // The straight part of the edge is the line itself, moved by the radius at a right angle.
        const double along = (row - y1_ - side * normalY_) / (y2_ - y1_);
        if (along < 0) return x1_ + side * HalfChord(row - y1_);
        if (along > 1) return x2_ + side * HalfChord(row - y2_);
        return x1_ + side * normalX_ + along * (x2_ - x1_);
    }

private:
    double HalfChord(double distance) const {
        return std::sqrt(std::max(0.0, radius_ * radius_ - distance * distance));
    }

    double x1_, y1_, x2_, y2_, radius_, normalX_, normalY_;
};

}  // namespace

PixelRect PenBounds(PixelPoint from, PixelPoint to, int penWidth) {
    const auto [left, right] = std::minmax(from.x, to.x);
    const auto [top, bottom] = std::minmax(from.y, to.y);
    const int before = penWidth / 2, after = penWidth - before;
    return {left - before, top - before, right + after, bottom + after};
}

void DrawWideLine(Bitmap& bitmap, PixelPoint from, PixelPoint to, int penWidth, const Ink& ink) {
    if (to.y < from.y) std::swap(from, to);
    const double shift = penWidth % 2 == 0 ? 0.5 : 0;
    const Capsule capsule(from.x - shift, from.y - shift, to.x - shift, to.y - shift, penWidth / 2.0);
    const PixelRect area =
        Intersection(PenBounds(from, to, penWidth), {0, 0, bitmap.Width(), bitmap.Height()});
    // A centre that lies on the edge belongs to the line, on either side; rounding shall not decide it.
    constexpr double slack = 1e-9;
    const auto column = [&](double x) {
        return static_cast<int>(std::clamp<double>(x, area.left - 1, area.right));
    };
    ink.Visit([&](const auto& paint) {
        for (int y = area.top; y < area.bottom; ++y) {
            const int left = column(std::ceil(capsule.Edge(-1, y) - slack));
            const int right = column(std::floor(capsule.Edge(1, y) + slack));
            InkRow(bitmap, y, left, right + 1, paint);
        }
    });
}

}  // namespace coinlet
