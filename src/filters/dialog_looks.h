#pragma once

#include "controls/control.h"
#include "controls/shapes.h"

namespace coinlet {

// What the two colour dialogs share: the picture on the left, a column of controls on the right.

constexpr int dialogWidth = 792, dialogHeight = 524;  // pixels, as all here
constexpr int dialogMargin = 12;
constexpr int dialogColumn = 524, dialogColumnWidth = 256;

/// Draws a thin edge around a control that has none of its own.
void SetEdge(Shape& edge, const Control& around);

}  // namespace coinlet
