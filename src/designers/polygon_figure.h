#pragma once

#include <string>

namespace coinlet {

class Surface;

/// How many sides a polygon can have.
constexpr int fewestSides = 3, mostSides = 360;

/// The figures of a regular polygon that is inscribed in a circle, in the unit of the circle's radius.
struct PolygonFigures {
    double cornerAngle = 0;  ///< Degrees from one corner to the next, as seen from the centre.
    double arcLength = 0;    ///< Of the circle, from one corner to the next.
    double circumference = 0;
    double sideLength = 0;
    double perimeter = 0;
};

/// `sides` is `fewestSides` to `mostSides`, `radius` any finite number; a figure beyond the range of double
/// is infinite.
PolygonFigures FiguresOf(int sides, double radius);

/// How far around the circle the corners of a polygon go, in degrees from the first one.
constexpr int wholeTurn = 360, halfTurn = 180;

/// Which corners of a regular polygon are drawn, all in degrees and counter-clockwise.
struct PolygonSweep {
    int sides = fewestSides;
    int rotation =
        0;  ///< Of the first corner, from straight to the right; -32768 to 32767, others count as these.
    int turn = wholeTurn;
};

/// Wipes a surface and draws a regular polygon on it, in black, with a spoke from its centre to each corner.
/// From then on the surface has a user scale in which the circle of that radius touches all four sides, its
/// centre is (0, 0), and y grows upward: so the figure fills the surface whatever the radius is. On a surface
/// that isn't square it is flat.
///
/// The angle of each corner is a sum of single precision. Where the number of sides doesn't divide the turn,
/// that sum can end just beyond it: then the last corner is missing, and with it the edge that closes the
/// polygon.
///
/// Radius 0, or one so large that twice of it is no number, leaves the surface wiped, and its scale as it
/// was.
void DrawPolygonFigure(Surface& picture, const PolygonSweep& sweep, double radius);

/// An angle from 0 to 999 degrees with two decimals, a half going up, and the degree sign: "51.43°".
std::string DegreesWithDecimals(double degrees);
/// The same in whole degrees: "30°".
std::string WholeDegrees(int degrees);

}  // namespace coinlet
