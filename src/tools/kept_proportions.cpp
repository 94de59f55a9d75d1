#include "tools/kept_proportions.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace coinlet {

namespace {

constexpr double rayStep = std::numbers::pi / 12;

float Side(float distance, float length) {
    return distance < 0 ? -length : length;
}

}  // namespace

GesturePoint CornerOfSquare(GesturePoint anchor, GesturePoint pointer) {
    const float x = pointer.x - anchor.x, y = pointer.y - anchor.y;
    const float longer = std::max(std::abs(x), std::abs(y));
    return {anchor.x + Side(x, longer), anchor.y + Side(y, longer)};
}

GesturePoint NextOnRay(GesturePoint anchor, GesturePoint pointer) {
    const double x = pointer.x - anchor.x, y = pointer.y - anchor.y;
    const double angle = std::nearbyint(std::atan2(y, x) / rayStep) * rayStep;
    const double along = x * std::cos(angle) + y * std::sin(angle);
    const auto whole = [](double place) { return static_cast<float>(std::nearbyint(place)); };
    return {whole(anchor.x + along * std::cos(angle)), whole(anchor.y + along * std::sin(angle))};
}

}  // namespace coinlet
