#pragma once

#include "tools/gesture_engine.h"

namespace coinlet {

class Label;

/// The top left corner of a text, in canvas pixels.
struct TextCorner {
    double left, top;
};

/// Where the text of a label is while it hangs on the pointer, and where it will be printed: up and left of
/// the pointer, a little off it.
TextCorner CornerOfHangingText(const Label& text, GesturePoint pointer);

}  // namespace coinlet
