#include "designers/polygon_figure.h"

#include "base/angles.h"
#include "base/numbers.h"
#include "surface/surface.h"

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

constexpr double degreesARadian = 57.2957795130823;
constexpr double radiansADegree = pi / 180;

/// Far beyond it a step of single precision would no longer lead from one corner to the next.
constexpr int largestRotation = 32767;

constexpr const char* degreeSign = "°";

}  // namespace

PolygonFigures FiguresOf(int sides, double radius) {
    PolygonFigures figures;
    figures.cornerAngle = double{wholeTurn} / sides;
    figures.arcLength = figures.cornerAngle * radius / degreesARadian;
    figures.circumference = 2 * pi * radius;
    figures.sideLength = radius * std::sqrt(2 - 2 * std::cos(radiansADegree * figures.cornerAngle));
    figures.perimeter = figures.sideLength * sides;
    return figures;
}

void DrawPolygonFigure(Surface& picture, const PolygonSweep& sweep, double radius) {
    picture.Cls();
    if (radius == 0 || !std::isfinite(2 * radius)) return;
    picture.Scale(-radius, radius, radius, -radius);

    const int rotation = std::clamp(sweep.rotation, -largestRotation - 1, largestRotation);
    const auto first = static_cast<float>(rotation);
    const auto limit = static_cast<float>(sweep.turn + rotation);
    const float step = Single(double{wholeTurn} / sweep.sides);
    float previousX = 0, previousY = 0;
    for (float degrees = first; degrees <= limit; degrees += step) {
        const double angle = degrees * radiansADegree;
        const float x = Single(radius * std::cos(angle)), y = Single(radius * std::sin(angle));
        picture.PSet(x, y);
        picture.Line(previousX, previousY, x, y, black);
        picture.Line(0, 0, x, y, black);
        previousX = x;
        previousY = y;
    }
    picture.PSet(0, 0, black);
}

std::string DegreesWithDecimals(double degrees) {
    constexpr long hundred = 100, ten = 10;
    const long hundredths = std::lround(degrees * hundred);
    const long decimals = hundredths % hundred;
    return std::to_string(hundredths / hundred) + (decimals < ten ? ".0" : ".") + std::to_string(decimals) +
           degreeSign;
}

std::string WholeDegrees(int degrees) {
    return std::to_string(degrees) + degreeSign;
}

}  // namespace coinlet
