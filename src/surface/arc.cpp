#include "surface/arc.h"

#include "surface/surface.h"

#include <cmath>
#include <numbers>

namespace coinlet {

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;

/// The same direction in 0 .. 2 pi.
double Normalised(double angle) {
    const double rest = std::fmod(angle, fullTurn);
    return rest < 0 ? rest + fullTurn : rest;
}

}  // namespace

std::optional<Arc> Arc::Between(const ArcAngles& angles) {
    if (!std::isfinite(angles.start) || !std::isfinite(angles.end)) return {};
    Arc arc;
    arc.start_ = Normalised(angles.start);
    arc.end_ = Normalised(angles.end);
    if (arc.end_ == 0) arc.end_ = fullTurn;
    arc.span_ = arc.end_ - arc.start_;
    if (arc.span_ < 0) arc.span_ += fullTurn;
    arc.whole_ = arc.span_ == 0 || arc.span_ == fullTurn || angles.start == angles.end;
    arc.startX_ = std::cos(arc.start_);
    arc.startY_ = std::sin(arc.start_);
    arc.endX_ = std::cos(arc.end_);
    arc.endY_ = std::sin(arc.end_);
    return arc;
}

bool Arc::Contains(int x, int y) const {
    if (whole_) return true;
    // Which side of the two rays the point is on says it, and costs far less than an angle. Only where it is
    // on a ray, or nearly, is its angle compared, so that both ends count in.
    const double afterStart = startX_ * y - startY_ * x, beforeEnd = endY_ * x - endX_ * y;
    const double nearly = 1e-9 * (std::abs(static_cast<double>(x)) + std::abs(static_cast<double>(y)));
    if (std::abs(afterStart) <= nearly || std::abs(beforeEnd) <= nearly) return ContainsAngleOf(x, y);
    const bool after = afterStart > 0, before = beforeEnd > 0;
    return span_ > std::numbers::pi ? after || before : after && before;
}

bool Arc::ContainsAngleOf(double x, double y) const {
    const double angle = Normalised(std::atan2(y, x));
    if (start_ <= end_) return (angle >= start_ && angle <= end_) || (angle == 0 && end_ == fullTurn);
    return angle >= start_ || angle <= end_;
}

}  // namespace coinlet
