#include "designers/regular_polygon.h"

#include "base/angles.h"
#include "surface/surface.h"

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

/// Stands for the slope of an upright line: steep, but finite.
constexpr float uprightSlope = 301.59289474461985F;
constexpr int mostDrawnSides = 32767;

}  // namespace

// All in single precision, step by step: corners that fall between two pixels go to the same one every time.
TurnedPoint RPoint(float theta, PlanePoint centre, PlanePoint point, float aspect) {
    float dx = point.x - centre.x, dy = point.y - centre.y;
    if (aspect > 1) dx *= aspect;
    if (aspect < 1) dy /= aspect;
    if (dx == 0 && dy == 0) return {point, 0};
    const auto radius = static_cast<float>(std::sqrt(double{dx} * dx + double{dy} * dy));
    const float slope = dx == 0 ? uprightSlope : dy / dx;
    auto angle = static_cast<float>(std::atan(double{slope}) + theta);
    if (dx < 0 || (dx == 0 && dy < 0)) angle = static_cast<float>(angle + pi);
    auto x = static_cast<float>(std::cos(double{angle}) * radius);
    auto y = static_cast<float>(std::sin(double{angle}) * radius);
    if (aspect > 1) x /= aspect;
    if (aspect < 1) y *= aspect;
    return {{x + centre.x, y + centre.y}, radius};
}

void DrawPolygon(Surface& target, float rotate, float aspect, PlanePoint centre, float size, int sides,
                 Colour colour) {
    const int count = std::min(sides, mostDrawnSides);
    const PlanePoint start{centre.x - size, centre.y};
    PlanePoint first, before;
    float theta = rotate;
    for (int i = 1; i <= count; ++i) {
        const PlanePoint corner = RPoint(theta, centre, start, aspect).place;
        if (i == 1) {
            first = corner;
        } else {
            target.Line(before.x, before.y, corner.x, corner.y, colour);
        }
        if (i == count) target.Line(corner.x, corner.y, first.x, first.y, colour);
        before = corner;
        theta = static_cast<float>(theta + 2 * pi / count);
    }
}

}  // namespace coinlet
