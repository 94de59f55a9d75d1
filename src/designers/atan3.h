#pragma once

namespace coinlet {

/// The direction from a centre to a point that lies `DX` to the right of it and `DY` below it: radians, above
/// 0 and up to 2 pi, counter-clockwise on the screen from the positive x axis, as `Surface::Circle` takes
/// them. Straight to the right is 2 pi, and so is the centre itself.
float ATan3(double DX, double DY);

}  // namespace coinlet
