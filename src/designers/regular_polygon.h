#pragma once

#include "surface/colour.h"

namespace coinlet {

class Surface;

/// A point of the plane, y growing downward.
struct PlanePoint {
    float x = 0, y = 0;
    friend bool operator==(const PlanePoint&, const PlanePoint&) = default;
};

/// Where a point comes to by a turn, and how far it is from the centre of it.
struct TurnedPoint {
    PlanePoint place;
    float radius = 0;
};

/// Turns `point` around `centre` by `theta` radians, clockwise on the screen, on an ellipse whose height
/// divided by its width is `aspect` (1 is a circle); the radius is that of the longer axis. A point on the
/// centre stays there.
///
/// This is the rule for every aspect. What is drawn so far is round, and asks for the place alone.
TurnedPoint RPoint(float theta, PlanePoint centre, PlanePoint point, float aspect);

/// Draws the outline of a regular polygon. Its corners lie at the distance `size` from the centre; the first
/// one is straight left of it, turned by `rotate` radians clockwise, the others follow clockwise. One side is
/// a point, below one there is nothing to draw. Of very many sides 32,767 are drawn, which no eye can tell
/// from more.
void DrawPolygon(Surface& target, float rotate, float aspect, PlanePoint centre, float size, int sides,
                 Colour colour);

}  // namespace coinlet
