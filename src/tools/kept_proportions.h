#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

// Where a drag with Shift counts to have come to, in whole pixels.

/// The corner of a square that begins at the anchor: the longer side of the box to the pointer rules, each
/// direction stays. A side that lies level with the anchor goes right or down.
GesturePoint CornerOfSquare(GesturePoint anchor, GesturePoint pointer);

/// The point next to the pointer on a line from the anchor that rises by a multiple of 15 degrees.
GesturePoint NextOnRay(GesturePoint anchor, GesturePoint pointer);

}  // namespace coinlet
