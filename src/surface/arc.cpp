#include "surface/arc.h"

#include "surface/surface.h"

#include <cmath>
#include <numbers>

namespace coinlet {

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
/// How far from the direction of an end a pixel still belongs to the arc.
constexpr double endReach = 0.5;

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
    // The distances from the two rays also tell on which side of them the point lies, and cost far less than
    // an angle.
    const double afterStart = startX_ * y - startY_ * x, beforeEnd = endY_ * x - endX_ * y;
    const bool after = afterStart >= 0, before = beforeEnd >= 0;
    if (span_ > std::numbers::pi ? after || before : after && before) return true;
    return (std::abs(afterStart) <= endReach && startX_ * x + startY_ * y > 0) ||
           (std::abs(beforeEnd) <= endReach && endX_ * x + endY_ * y > 0);
}

}  // namespace coinlet
